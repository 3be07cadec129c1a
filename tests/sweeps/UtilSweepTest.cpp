#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "vexa/util/Util.h"

// Two special numbers at once in all arithmetic of scales and arcs: every call ends, and finite numbers stay finite.

namespace VEXA::Testing {
namespace {

using Limit = std::numeric_limits<float>;

/// Numbers at which single precision behaves otherwise than beside them.
std::vector<float> specialNumbers() {
    std::vector<float> numbers = {Limit::quiet_NaN(), Limit::infinity(), -Limit::infinity(), -0.0F, 0.0F};
    for (const float number : {Limit::denorm_min(), Limit::min(), std::nextafter(1.0F, 0.0F), 1.0F, 0.1F, 2.0F, 360.0F,
                               2147483648.0F, 16777216.0F, 1e-20F, 3.0e19F, 1e38F, Limit::max()}) {
        for (const float sign : {1.0F, -1.0F}) {
            numbers.push_back(sign * number);
            numbers.push_back(sign * std::nextafter(number, 0.0F));
        }
    }
    for (int power = -4; numbers.size() < 64; ++power) numbers.push_back(std::pow(10.0F, static_cast<float>(power)));
    return numbers;
}

void sweepRange(float a, float b, float step) {
    float min = a;
    float max = b;
    Util::adjustValueRange(min, max, step);
    if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(step) || step <= 0) return;
    EXPECT_TRUE(std::isfinite(min) && std::isfinite(max)) << a << ' ' << b << ' ' << step;
    EXPECT_TRUE(a > b || (min <= a && b <= max)) << a << ' ' << b << ' ' << step << " lost values";
}

void sweepArc(float a, float b) {
    for (const auto& arc : {Util::convertArc({a, b}, {b, a}, a, b, a, true, false),
                            Util::convertArc({0, a}, {b, 0}, b, a, b, false, true)}) {
        const auto points = Util::getBezierArcPoints(arc);
        EXPECT_LE(points.size(), 4U * 8) << a << ' ' << b;
        if (!std::isfinite(a) || !std::isfinite(b)) continue;
        EXPECT_TRUE(std::isfinite(arc.startAngle) && std::isfinite(arc.sweepAngle)) << a << ' ' << b;
        for (const PointF point : points) EXPECT_FALSE(std::isnan(point.x) || std::isnan(point.y)) << a << ' ' << b;
    }
}

TEST(UtilSweep, OneNumber) {
    for (const float number : specialNumbers()) {
        EXPECT_TRUE(std::isfinite(Util::adjustValueRange(double{number}))) << number;
        EXPECT_GE(Util::getNextFrequencyUnit(number), 0.1F) << number;
        EXPECT_TRUE(std::isfinite(Util::getNextFrequencyUnit(number))) << number;
        for (const int parts : {std::numeric_limits<int>::min(), -1, 0, 1, 7, std::numeric_limits<int>::max()}) {
            const float step = Util::getFloatMinUnit(number, parts);
            EXPECT_TRUE(std::isfinite(step) && step >= 0) << number << " in " << parts;
            EXPECT_NO_THROW(Util::getIntMinUnit(std::numeric_limits<int>::min(), parts));
        }
        for (const char* pattern : {"", "0.00", "#,##0.###", "0E0", "%", "000000000000000000000.0"})
            EXPECT_NO_THROW(Util::decimalFormat(number, pattern)) << number << pattern;
    }
}

TEST(UtilSweep, TwoNumbers) {
    const std::vector<float> numbers = specialNumbers();
    ASSERT_EQ(numbers.size(), 64U);
    for (const float a : numbers) {
        for (const float b : numbers) {
            sweepRange(a, b, Util::getFloatMinUnit(b - a, 10));
            sweepRange(std::min(a, 0.0F), std::max(a, 0.0F), b);
            sweepArc(a, b);
            const PointF end = Util::getArcEndPoint({0, 0}, a, a, double{b});
            EXPECT_TRUE(!std::isfinite(a) || !std::isfinite(b) || std::isfinite(end.x + 0 * end.y)) << a << ' ' << b;
        }
    }
}

}  // namespace
}  // namespace VEXA::Testing
