#include <gtest/gtest.h>

#include <bit>
#include <chrono>
#include <cmath>
#include <limits>

#include "vexa/util/Util.h"

namespace VEXA {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kSmallest = std::numeric_limits<float>::denorm_min();

TEST(UtilRanges, OneExtremeMovesToTheNextRoundValue) {
    const struct {
        double value;
        float expected;
        const char* why;
    } cases[] = {
        {0, 0, "nothing to round"},
        {7, 8, "twos below 20, after scaling to two digits: 70 to 80 stands for 7"},
        {10, 12, "a round value moves on"},
        {19, 20, "the last of the twos"},
        {19.2, 25, "the ceiling 20 comes first, and a five lies beyond it"},
        {20, 25, "fives from 20 on"},
        {37, 40, "fives"},
        {49, 50, "the last of the fives"},
        {49.5, 60, "the ceiling 50 belongs to the tens"},
        {50, 60, "tens from 50 on"},
        {99, 100, "the last of the tens"},
        {99.5, 110, "the ceiling 100 moves on by a ten"},
        {100, 120, "three digits scale down"},
        {1234, 1400, "the ceiling of 12.34 is 13"},
        {0.5, 0.6F, "fractions scale up"},
        {0.3, 0.35F, "the scaled decimal is 30, not a hair above"},
        {-7, -8, "away from zero"},
        {-23, -25, "away from zero"},
        {-0.07, -0.08F, "away from zero"},
        {1.55e-40, 1.8e-40F, "subnormal numbers have round neighbours, too"},
        {3.4e38, kLargest, "the next one, 3.5e38, is none of single precision"},
        {1e300, kLargest, "cut to the range of float"},
        {kInfinity, kLargest, "infinity, too"},
        {-kInfinity, -kLargest, "and its negative"},
        {kNaN, 0, "no number"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(static_cast<float>(Util::adjustValueRange(c.value)), c.expected) << c.value << ": " << c.why;
}

// Every exponent, three mantissas: far more than a chart ever sees, and every one of them is finite and outward.
TEST(UtilRanges, OneExtremeMovesOutwardsWhateverItsSize) {
    for (std::uint32_t high = 0; high < 0xff; ++high) {
        for (const std::uint32_t mantissa : {1U, 0x400000U, 0x7fffffU}) {
            const float value = std::bit_cast<float>(high << 23 | mantissa);
            const double rounded = Util::adjustValueRange(value);
            ASSERT_TRUE(std::isfinite(rounded)) << value;
            ASSERT_GE(rounded, value) << value;
            ASSERT_LE(rounded, value * (25.0 / 19.0) + kSmallest) << "no more than 25 for what lies just above 19";
            ASSERT_EQ(Util::adjustValueRange(-value), -rounded) << value;
        }
    }
}

struct BoundsCase {
    float min, max, step;
    float expectedMin, expectedMax;
    const char* why;
};

const BoundsCase kBoundsCases[] = {
    {-23, 37, 10, -30, 40, "both outwards"},
    {-5, -1, 2, -6, 0, "a range below zero reaches up to it"},
    {0, 0, 5, 0, 0, "nothing to widen"},
    {0, 10, 2, 0, 10, "bounds on the grid stay"},
    {-10, 0, 2, -10, 0, "bounds on the grid stay"},
    {5, 12, 5, 5, 15, "above zero the grid starts at the minimum"},
    {5, 3, 5, 5, 5, "a maximum below the minimum becomes it"},
    {5, 5, 5, 5, 5, "a single value"},
    {0, 1, 0.1F, 0, 1.0000001F, "ten tenths, summed in single precision, are a hair above 1, and that is enough"},
    {-1, 1, 1e9F, -1e9F, 1e9F, "a step wider than the range"},
};

TEST(UtilRanges, BoundsMoveOntoTheStepGrid) {
    for (const BoundsCase& c : kBoundsCases) {
        float min = c.min;
        float max = c.max;
        Util::adjustValueRange(min, max, c.step);
        EXPECT_EQ(min, c.expectedMin) << c.why;
        EXPECT_EQ(max, c.expectedMax) << c.why;
    }
}

const BoundsCase kHostileBounds[] = {
    {0, 16777220, 1, 0, 16777220, "a sum of ones stops growing at 2^24"},
    {-16777220, 0, 1, -16777220, 0, "downwards, too"},
    {0, 3e9F, 7, 0, 3e9F, "hundreds of millions of steps: the nearest float to a multiple of 7"},
    {1, 2, 1e-10F, 1, 2, "the first step is lost already"},
    {0, 1, kSmallest, 0, 1, "the smallest step there is"},
    {0, kLargest, 1, 0, kLargest, "the longest way there is"},
    {0, kLargest, 3e38F, 0, kLargest, "the next multiple would be infinite"},
    {-kLargest, kLargest, 3e38F, -kLargest, kLargest, "on both sides"},
    {-1, 1, kLargest, -kLargest, kLargest, "the largest step"},
    {-1, 1, 0, -1, 1, "no step, no grid"},
    {-1, 1, -2, -1, 1, "a step backwards"},
    {-1, 1, kNaN, -1, 1, "no number"},
    {-1, 1, kInfinity, -1, 1, "no multiple of infinity is finite but 0"},
    {-1, kInfinity, 2, -1, kInfinity, "a bound that cannot be reached stays"},
    {-kInfinity, 1, 2, -kInfinity, 1, "a bound that cannot be reached stays"},
};

TEST(UtilRanges, HostileBoundsEndSoon) {
    const auto start = std::chrono::steady_clock::now();
    for (const BoundsCase& c : kHostileBounds) {
        float min = c.min;
        float max = c.max;
        Util::adjustValueRange(min, max, c.step);
        EXPECT_EQ(min, c.expectedMin) << c.why;
        EXPECT_EQ(max, c.expectedMax) << c.why;
    }
    float min = kNaN;
    float max = 1;
    Util::adjustValueRange(min, max, 2);
    EXPECT_EQ(max, 1) << "no number leaves its neighbour alone";
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST(UtilRanges, NextUnitIsOfTheSeriesOneTwoFive) {
    const struct {
        float value;
        float expected;
        const char* why;
    } cases[] = {
        {0.2F, 0.2F, "a member is its own next"},
        {0.21F, 0.5F, "between members"},
        {3, 5, "between members"},
        {6, 10, "the next decade"},
        {1234, 2000, "far decades"},
        {0.05F, 0.1F, "no step below a tenth"},
        {0, 0.1F, "nothing wanted"},
        {-4, 0.1F, "negative"},
        {0.9e38F, 1e38F, "the last decade"},
        {2.5e38F, kLargest, "5e38 is none of single precision"},
        {kInfinity, kLargest, "infinity"},
        {-kInfinity, 0.1F, "negative infinity"},
        {kNaN, 0.1F, "no number"},
    };
    for (const auto& c : cases) EXPECT_FLOAT_EQ(Util::getNextFrequencyUnit(c.value), c.expected) << c.why;
}

TEST(UtilRanges, WholePartsRoundUp) {
    const struct {
        int total, parts, expected;
        const char* why;
    } cases[] = {
        {10, 3, 4, "rounded up"},
        {9, 3, 3, "even"},
        {-10, 3, -3, "up is towards zero here"},
        {10, -3, -3, "up is towards zero here"},
        {2147483647, 1, 2147483647, "2^31 in single precision, cut to the range of int"},
        {-2147483647 - 1, -1, 2147483647, "the one quotient of ints that is none"},
        {12, 0, 12, "no parts: the whole"},
    };
    for (const auto& c : cases) EXPECT_EQ(Util::getIntMinUnit(c.total, c.parts), c.expected) << c.why;
}

TEST(UtilRanges, StepDividesTheSpanIntoThatManyParts) {
    const struct {
        float span;
        int parts;
        float expected;
        const char* why;
    } cases[] = {
        {60, 5, 20, "12 becomes 20"},
        {60, 10, 10, "6 becomes 10"},
        {0.6F, 4, 0.2F, "0.15 becomes 0.2"},
        {0.05F, 5, 0.1F, "no step below a tenth"},
        {1e12F, 5, 2e11F, "spans beyond the integers"},
        {0, 7, 0, "no span"},
        {60, 0, 0.1F, "no parts"},
        {60, -4, 0.1F, "fewer than none"},
        {60, 2147483647, 1, "more parts than units: at least a unit"},
        {-60, 5, 0.1F, "a negative span"},
        {kNaN, 5, 0.1F, "no number"},
        {kSmallest, 5, 0.1F, "scaled up until its scale is infinite"},
        {kLargest, 1, kLargest, "beyond the series"},
        {kInfinity, 5, kLargest, "infinity"},
    };
    for (const auto& c : cases) EXPECT_FLOAT_EQ(Util::getFloatMinUnit(c.span, c.parts), c.expected) << c.why;
}

}  // namespace
}  // namespace VEXA
