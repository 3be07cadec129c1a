#include "vexa/spider/SpiderScale.h"

#include <algorithm>
#include <cmath>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr float kPixelsPerRing = 4.0F;
constexpr double kSameRing = 1e-4;  // of a step: rounding must not draw the outermost ring twice

float roundOutward(float value) noexcept {
    return static_cast<float>(Util::adjustValueRange(static_cast<double>(value)));
}

}  // namespace

void SpiderExtent::add(const SpiderExtent& other) noexcept {
    min = std::min(min, other.min);
    max = std::max(max, other.max);
}

float SpiderScale::position(float value) const noexcept {
    const float extent = max - min;
    const float distance = value - min;
    return distance == 0 || extent == 0 ? 0.0F : distance / extent;
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
    // In double precision every whole number a float can hold divides exactly, also those beyond 64 bits.
    const double whole =
        std::trunc(std::abs(static_cast<double>(scale.min)) + std::abs(static_cast<double>(scale.max)));
    const int mostRings = std::min(Math::toInt(radius / kPixelsPerRing), static_cast<int>(Limits::kWebRings));
    for (int rings = mostRings; rings >= 2; --rings) {
        if (std::fmod(whole, rings) == 0) return static_cast<float>(whole / rings);
    }
    return static_cast<float>(whole);
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
            const auto value = static_cast<float>(scale.min + static_cast<double>(i) * spacing);
            if (!(value < last)) break;
            if (value > rings.values.back()) rings.values.push_back(value);
        }
    }
    if (scale.min != scale.max) rings.values.push_back(scale.max);
    return rings;
}

}  // namespace VEXA
