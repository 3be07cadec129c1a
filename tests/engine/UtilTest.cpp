#include "vexa/util/Util.h"

#include <bit>
#include <cmath>
#include <limits>

#include "tests/engine/EngineTestTools.h"

namespace VEXA {
namespace {

using Testing::Case;

constexpr float kLargest = std::numeric_limits<float>::max();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kSmallest = std::numeric_limits<float>::denorm_min();

TEST(UtilRanges, OneExtremeMovesToTheNextRoundValue) {
    const Case<double, float> cases[] = {
        {0, 0, "nothing to round"},
        {7, 8, "twos below 20, after scaling to two digits: 70 to 80 stands for 7"},
        {10, 12, "a round value moves on"},
        {19.2, 25, "the ceiling 20 comes first, and a five lies beyond it"},
        {49, 50, "the last of the fives"},
        {49.5, 60, "the ceiling 50 belongs to the tens"},
        {99.5, 110, "the ceiling 100 moves on by a ten"},
        {100, 120, "three digits scale down"},
        {0.3, 0.35F, "the scaled decimal is 30, not a hair above"},
        {1.55e-40, 1.8e-40F, "subnormal numbers have round neighbours, too"},
        {-kInfinity, -kLargest, "infinity, too"},
        {kNaN, 0, "no number"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(static_cast<float>(Util::adjustValueRange(c.in)), c.out) << c.in << ": " << c.why;

    // Every exponent, three mantissas: far more than a chart ever sees, and every one of them is finite and outward.
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

TEST(UtilRanges, BoundsMoveOntoTheStepGrid) {
    const struct {
        float min, max, step, expectedMin, expectedMax;
        const char* why;
    } cases[] = {
        {-23, 37, 10, -30, 40, "both outwards"},
        {-5, -1, 2, -6, 0, "a range below zero reaches up to it"},
        {-10, 10, 2, -10, 10, "bounds on the grid stay"},
        {5, 12, 5, 5, 15, "above zero the grid starts at the minimum"},
        {5, 3, 5, 5, 5, "a maximum below the minimum becomes it"},
        {0, 1, 0.1F, 0, 1.0000001F, "ten tenths, summed in single precision, are a hair above 1: that is enough"},
        // What would hang or overflow a loop.
        {-16777220, 16777220, 1, -16777220, 16777220, "a sum of ones stops growing at 2^24"},
        {0, 3e9F, 7, 0, 3e9F, "hundreds of millions of steps: the nearest float to a multiple of 7"},
        {0, 1, kSmallest, 0, 1, "the smallest step there is"},
        {-kLargest, kLargest, 3e38F, -kLargest, kLargest, "the next multiple would be infinite"},
        {-1, 1, 0, -1, 1, "no step, no grid"},
        {-1, 1, kNaN, -1, 1, "no number"},
        {-1, 1, kInfinity, -1, 1, "no multiple of infinity is finite but 0"},
        {-1, kInfinity, 2, -1, kInfinity, "a bound that cannot be reached stays"},
    };
    for (const auto& c : cases) {
        float min = c.min;
        float max = c.max;
        Util::adjustValueRange(min, max, c.step);
        EXPECT_EQ(min, c.expectedMin) << c.why;
        EXPECT_EQ(max, c.expectedMax) << c.why;
    }
    float nan = kNaN;
    float max = 1;
    Util::adjustValueRange(nan, max, 2);
    EXPECT_EQ(max, 1) << "no number leaves its neighbour alone";
}

TEST(UtilRanges, NextUnitIsOfTheSeriesOneTwoFive) {
    const Case<float, float> cases[] = {
        {0.2F, 0.2F, "a member is its own next"},
        {0.21F, 0.5F, "between members"},
        {0.05F, 0.1F, "no step below a tenth"},
        {-kInfinity, 0.1F, "negative"},
        {2.5e38F, kLargest, "5e38 is none of single precision"},
        {kInfinity, kLargest, "infinity"},
        {kNaN, 0.1F, "no number"},
    };
    for (const auto& c : cases) EXPECT_FLOAT_EQ(Util::getNextFrequencyUnit(c.in), c.out) << c.why;
}

TEST(UtilRanges, WholePartsRoundUp) {
    const Case<std::pair<int, int>, int> cases[] = {
        {{10, 3}, 4, "rounded up"},
        {{-2147483647 - 1, -1}, 2147483647, "the one quotient of ints that is none"},
        {{12, 0}, 12, "no parts: the whole"},
        {{9, 3}, 3, "no remainder"},
        {{100000001, 10}, 10000000, "10000000.1 is 10000000 in single precision"},
    };
    for (const auto& c : cases) EXPECT_EQ(Util::getIntMinUnit(c.in.first, c.in.second), c.out) << c.why;
}

TEST(UtilRanges, StepDividesTheSpanIntoThatManyParts) {
    const Case<std::pair<float, int>, float> cases[] = {
        {{60, 5}, 20, "12 becomes 20"},
        {{0.05F, 5}, 0.1F, "no step below a tenth"},
        {{0.6F, 4}, 0.2F, "0.15 becomes 0.2"},
        {{0, 7}, 0, "no span"},
        {{60, 0}, 0.1F, "no parts"},
        {{60, 2147483647}, 1, "more parts than units: at least a unit"},
        {{-60, 5}, 0.1F, "a negative span"},
        {{kNaN, 5}, 0.1F, "no number"},
        {{kSmallest, 5}, 0.1F, "scaled up until its scale is infinite"},
        {{kInfinity, 5}, kLargest, "infinity"},
    };
    for (const auto& c : cases) EXPECT_FLOAT_EQ(Util::getFloatMinUnit(c.in.first, c.in.second), c.out) << c.why;
}

TEST(UtilTransforms, ListsMoveAPointAsInSvg) {
    using enum TransformKind;
    const Transform shift{Translate, {}, {Length(10), Length(20)}};
    const Transform scale{Scale, {2, 3}, {}};
    const struct {
        Vector<Transform> list;
        PointF point, expected;
        const char* why;
    } cases[] = {
        {{{TransformKind::Matrix, {2, 3, 5, 7, 11, 13}, {}}}, {1, 10}, {63, 86}, "ax + cy + e, bx + dy + f"},
        {{{Translate, {}, {Length(3, LengthUnit::Pt), Length(-1)}}}, {1, 1}, {5, 0}, "lengths in px: 3 pt are 4"},
        {{{Rotate, {90}, {Length(10), Length(0)}}}, {11, 0}, {10, 1}, "clockwise on the screen about (10, 0)"},
        {{{SkewX, {0.5}, {}}}, {1, 4}, {3, 4}, "half of y to the right"},
        {{{SkewY, {0.5}, {}}}, {4, 1}, {4, 3}, "half of x down"},
        {{{static_cast<TransformKind>(7), {9, 9, 9, 9, 9, 9}, {}}}, {1, 2}, {1, 2}, "an unknown kind"},
        {{shift, scale}, {1, 1}, {12, 23}, "the last of a list comes first to the point"},
        {{scale, shift}, {1, 1}, {22, 63}, "the other way round"},
        {{{Scale, {1e300, -1e300}, {}}}, {1, 1}, {kLargest, -kLargest}, "numbers beyond single precision are cut"},
    };
    for (const auto& c : cases) {
        VEXA::Matrix matrix(1, 0, 0, 1, 100, 0);
        Util::addTransformationList(matrix, c.list);
        const PointF point = matrix.apply(c.point);
        EXPECT_NEAR(point.x, c.expected.x + 100, 1e-5F) << c.why << ", in the matrix that is there";
        EXPECT_NEAR(point.y, c.expected.y, 1e-5F) << c.why;
    }
}

}  // namespace
}  // namespace VEXA
