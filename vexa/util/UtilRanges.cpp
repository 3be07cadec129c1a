#include <algorithm>
#include <cmath>
#include <limits>

#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr float kLargest = std::numeric_limits<float>::max();
constexpr float kSmallestStep = 0.1F;
/// Sums of steps are taken one by one up to here: no axis shows more values, and a sum of ones stops growing at 2^24.
constexpr int kCountedSteps = 100'000;

/// The next grid point above a whole number from 10 to 100: twos below 20, fives below 50, then tens.
int nextGridPoint(int number) noexcept {
    const int grid = number < 20 ? 2 : number < 50 ? 5 : 10;
    return grid * (number / grid + 1);
}

/// The first of start, start + step, … that is not below `limit`. REQUIRES: finite values, a step above 0.
float climb(float start, float limit, float step) noexcept {
    float value = start;
    for (int count = 0; count < kCountedSteps && value < limit; ++count) value += step;
    if (value < limit) {
        const double steps = std::ceil((static_cast<double>(limit) - start) / step);
        value = std::max(limit, Math::toFloat(start + steps * step));
    }
    return std::min(value, kLargest);
}

}  // namespace

double Util::adjustValueRange(double value) {
    if (value == 0 || std::isnan(value)) return 0;
    if (std::isinf(value)) return std::copysign(static_cast<double>(kLargest), value);
    // Extended precision, so that the decimals of the value survive the scaling; the ceiling must not see its errors.
    long double scaled = std::fabs(static_cast<long double>(value));
    long double scale = 1;
    for (; scaled < 10; scaled *= 10) scale *= 10;
    for (; scaled >= 100; scaled /= 10) scale /= 10;
    const int ceiling = Math::toInt(std::ceil(static_cast<double>(scaled)));
    const auto rounded = static_cast<double>(nextGridPoint(ceiling) / scale);
    return Math::toFloat(std::copysign(rounded, value));
}

void Util::adjustValueRange(float& min, float& max, float step) {
    if (!std::isfinite(min) || !std::isfinite(max) || !std::isfinite(step) || step <= 0) return;
    if (min > 0) {
        max = climb(min, max, step);
        return;
    }
    max = climb(0, max, step);
    min = 0 - climb(0, -min, step);
}

float Util::getNextFrequencyUnit(float value) {
    if (std::isnan(value)) return kSmallestStep;
    float series[3] = {0.1F, 0.2F, 0.5F};
    for (int slot = 0;; slot = (slot + 1) % 3) {
        if (series[slot] >= value) return std::min(series[slot], kLargest);
        series[slot] *= 10.0F;  // in the end infinite, which is not below anything
    }
}

int Util::getIntMinUnit(int total, int parts) {
    if (parts == 0) return total;
    return Math::toInt(std::ceil(Math::toFloat(static_cast<double>(total) / parts)));
}

float Util::getFloatMinUnit(float span, int parts) {
    if (span == 0) return 0;
    if (!(span > 0) || parts <= 0) return kSmallestStep;
    float scale = 1;
    for (; span < 10; span *= 10) scale *= 10;
    const float pieces = std::ceil(Math::toFloat(std::ceil(static_cast<double>(span)) / parts));
    return getNextFrequencyUnit(pieces / scale);
}

}  // namespace VEXA
