#include "vexa/spider/SpiderScale.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr float kPixelsPerRing = 4.0F;
constexpr float kBeyond = std::numeric_limits<float>::infinity();  // a step that no scale has room for
constexpr double kSameRing = 1e-4;  // of a step: rounding must not draw the outermost ring twice

float roundOutward(float value) noexcept { return Math::toFloat(Util::adjustValueRange(static_cast<double>(value))); }

/// A whole number of any size that a double holds, as a multiple of a power of two: beyond 64 bits std::fmod answers
/// too, but bit by bit, and ten thousand divisors are tried for each web.
class WholeNumber {
public:
    explicit WholeNumber(double value) noexcept {
        constexpr int kDigits = std::numeric_limits<double>::digits;
        int exponent = 0;
        const double fraction = std::frexp(value, &exponent);
        twos_ = std::max(exponent - kDigits, 0);
        multiple_ = static_cast<std::uint64_t>(std::ldexp(fraction, exponent - twos_));
    }

    bool isDivisibleBy(std::uint64_t divisor) const noexcept {
        return multiple_ % (divisor >> std::min(std::countr_zero(divisor), twos_)) == 0;
    }

private:
    std::uint64_t multiple_ = 0;
    int twos_ = 0;
};

}  // namespace

void SpiderExtent::add(const SpiderExtent& other) noexcept {
    min = std::min(min, other.min);
    max = std::max(max, other.max);
}

float SpiderScale::position(float value) const noexcept {
    // In double precision: the extent of a scale from -2e38 to 2e38 is beyond a float.
    const double extent = static_cast<double>(max) - min;
    const double distance = static_cast<double>(value) - min;
    return distance == 0 || extent == 0 ? 0.0F : Math::toFloat(distance / extent);
}

SpiderScale spiderDataScale(const SpiderExtent& values) noexcept {
    float min = values.min;
    float max = values.max;
    if (max < 0 && min < 0) max = 0;
    if (min > 0 && max > 0) min = 0;
    if (max == SpiderExtent::kNoMax) max = 0;
    if (min == SpiderExtent::kNoMin) min = 0;
    return {roundOutward(min), roundOutward(max)};
}

SpiderScale spiderScale(const SpiderScale& data, const SpiderExtent& bounds) noexcept {
    constexpr float kOpenMin = -2147483648.0F;  // what an axis without bounds of its own answers
    constexpr float kOpenMax = 2147483648.0F;
    SpiderScale scale{bounds.min == kOpenMin ? data.min : bounds.min, bounds.max == kOpenMax ? data.max : bounds.max};
    if (scale.min > scale.max) scale.max = scale.min;
    return scale;
}

float spiderRingStep(const SpiderScale& scale, float radius, float wanted) noexcept {
    if (wanted > 0) return wanted;
    const double ends = std::abs(static_cast<double>(scale.min)) + std::abs(static_cast<double>(scale.max));
    // In single precision, as the ends are, where that knows every whole number: -30.3 and 69.7 are 100 apart.
    constexpr double kWholeNumbers = 16'777'216;  // 2^24
    const bool isSingle = ends < kWholeNumbers;
    const double whole = std::trunc(isSingle ? static_cast<double>(static_cast<float>(ends)) : ends);
    if (!(whole <= std::numeric_limits<float>::max() * 2.0)) return kBeyond;
    const WholeNumber number(whole);
    const int mostRings = std::min(Math::toInt(radius / kPixelsPerRing), static_cast<int>(Limits::kWebRings));
    for (int rings = mostRings; rings >= 2; --rings) {
        if (number.isDivisibleBy(static_cast<std::uint64_t>(rings))) return static_cast<float>(whole / rings);
    }
    return whole > std::numeric_limits<float>::max() ? kBeyond : static_cast<float>(whole);
}

std::size_t spiderMostRings(std::size_t axisCount) noexcept {
    return std::clamp(Limits::kWebCorners / std::max<std::size_t>(axisCount, 1), std::size_t{2}, Limits::kWebRings);
}

WebRings spiderWebRings(const SpiderScale& scale, float step, std::size_t mostRings) {
    WebRings rings{{scale.min}};
    const double extent = static_cast<double>(scale.max) - scale.min;
    double spacing = step;
    if (spacing != 0 && extent > 0) {
        const double steps = std::ceil(extent / spacing - kSameRing);
        rings.wanted = steps + 1;
        rings.isThinned = rings.wanted > static_cast<double>(mostRings);
        if (rings.isThinned) spacing *= std::ceil(steps / (static_cast<double>(mostRings) - 1));
        const double last = scale.max - spacing * kSameRing;
        for (std::size_t i = 1; i < mostRings; ++i) {
            const float value = Math::toFloat(scale.min + static_cast<double>(i) * spacing);
            if (!(value < last)) break;
            if (value > rings.values.back()) rings.values.push_back(value);
        }
    }
    if (scale.min != scale.max) rings.values.push_back(scale.max);
    return rings;
}

}  // namespace VEXA
