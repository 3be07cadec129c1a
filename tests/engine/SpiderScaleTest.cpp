#include "vexa/spider/SpiderScale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "tests/engine/EngineTestTools.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {
namespace {

using namespace Testing;

constexpr float kOpenMin = -2147483648.0F;
constexpr float kOpenMax = 2147483648.0F;

TEST(SpiderScale, PositionIsTheFractionOfTheScaleAndIsNotCut) {
    const struct {
        SpiderScale scale;
        float value;
        float position;
        const char* why;
    } cases[] = {
        {{0, 50}, 50, 1, "the tip"},
        {{0, 50}, 0, 0, "the centre"},
        {{10, 50}, 20, 0.25F, "counted from the minimum, not from zero"},
        {{-20, 20}, 0, 0.5F, "zero lies between the ends"},
        {{0, 50}, -10, -0.2F, "below the scale: the other side of the centre"},
        {{0, 50}, 75, 1.5F, "above the scale: outside the web"},
        {{5, 5}, 9, 0, "a scale without extent puts everything into the centre"},
    };
    for (const auto& c : cases) EXPECT_FLOAT_EQ(c.scale.position(c.value), c.position) << c.why;
}

TEST(SpiderScale, DataScaleIncludesZeroAndIsRoundedOutward) {
    const struct {
        SpiderExtent values;
        SpiderScale scale;
        const char* why;
    } cases[] = {
        {{12, 87}, {0, 90}, "all positive: from zero"},
        {{-23, -7}, {-25, 0}, "all negative: up to zero"},
        {{-23, 37}, {-25, 40}, "both ends round away from zero"},
        {{0, 0}, {0, 0}, "nothing but zeros"},
        {{}, {0, 0}, "no data at all"},
        {{3e9F, 5e9F}, {0, 6e9F}, "beyond the range of 32 bits"},
    };
    for (const auto& c : cases) EXPECT_EQ(spiderDataScale(c.values), c.scale) << c.why;
}

TEST(SpiderScale, ExtentGrowsWithWhatIsAdded) {
    SpiderExtent extent;
    extent.add(3);
    extent.add({-4, 1});
    extent.add(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(extent, (SpiderExtent{-4, 3})) << "what is no number leaves the extent as it was";
}

TEST(SpiderScale, BoundsCountOnlyWhenEveryAxisSetsThem) {
    const SpiderScale data{-5, 90};
    const struct {
        SpiderExtent bounds;
        SpiderScale scale;
        const char* why;
    } cases[] = {
        {{kOpenMin, kOpenMax}, {-5, 90}, "no bounds"},
        {{0, 50}, {0, 50}, "both ends, on every axis"},
        {{10, kOpenMax}, {10, 90}, "one axis leaves the upper end open"},
        {{kOpenMin, 50}, {-5, 50}, "one axis leaves the lower end open"},
        {{100, kOpenMax}, {100, 100}, "the data ends below the minimum: no extent, not a reversed scale"},
    };
    for (const auto& c : cases) EXPECT_EQ(spiderScale(data, c.bounds), c.scale) << c.why;
}

TEST(SpiderScale, RingStepDividesTheScaleIntoWholeNumbers) {
    const struct {
        SpiderScale scale;
        float radius;
        float wanted;
        float step;
        const char* why;
    } cases[] = {
        {{0, 100}, 150, 0, 4, "at most 37 rings, and 25 is the largest divisor of 100 below"},
        {{0, 90}, 150, 0, 3, "30 rings of 3"},
        {{-60, 40}, 150, 0, 4, "both ends count"},
        {{0, 97}, 150, 0, 97, "a prime number has no divisor: one step"},
        {{0, 7}, 150, 0, 1, "a small prime number is its own divisor"},
        {{0, 100}, 11.9F, 0, 50, "room for two rings"},
        {{0, 100}, 7.9F, 0, 100, "room for one ring: no division"},
        {{0, 0.9F}, 150, 0, 0, "no whole number in the scale"},
        {{0, 9.9F}, 150, 0, 1, "the fraction of the scale is cut off"},
        {{0, 6e9F}, 150, 0, 6e9F / 32, "32 divides 6,000,000,000, which no 32 bit integer holds"},
        {{0, 100}, 150, 30, 30, "a wanted step is taken as it is"},
        {{0, 100}, 150, -5, 4, "a step that leads nowhere is not"},
        {{0, 100}, 1e30F, 0, 1, "a radius beyond the range of int"},
    };
    for (const auto& c : cases) EXPECT_FLOAT_EQ(spiderRingStep(c.scale, c.radius, c.wanted), c.step) << c.why;
}

TEST(SpiderScale, RingsRunFromTheMinimumToTheMaximum) {
    const struct {
        SpiderScale scale;
        float step;
        const char* values;
        const char* why;
    } cases[] = {
        {{0, 100}, 25, "0 25 50 75 100", "the step meets the maximum"},
        {{0, 100}, 30, "0 30 60 90 100", "the last step is cut short"},
        {{-25, 40}, 13, "-25 -12 1 14 27 40", "steps count from the minimum, so zero has no ring of its own"},
        {{0, 0.5F}, 0, "0 0.5", "no step: both ends"},
        {{0, 10}, 50, "0 10", "a step beyond the maximum"},
        {{3, 3}, 1, "3", "no extent: one ring"},
        {{0, 1}, 0.1F, "0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1", "rounding does not draw the outermost ring twice"},
        {{16777216, 16777220}, 0.5F, "16777216 16777218 16777220", "a step below what a float can hold"},
    };
    for (const auto& c : cases) {
        const WebRings rings = spiderWebRings(c.scale, c.step, Limits::kWebRings);
        EXPECT_EQ(shown(rings.values), c.values) << c.why;
        EXPECT_FALSE(rings.isThinned) << c.why;
    }
}

TEST(SpiderScale, NothingThatIsNoNumberHangsTheWeb) {
    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const SpiderScale scale :
         {SpiderScale{nan, 1}, {0, nan}, {0, infinity}, {-infinity, 0}, {-infinity, infinity}}) {
        for (const float step : {1.0F, 1e-30F, infinity, nan}) {
            EXPECT_LE(spiderWebRings(scale, step, Limits::kWebRings).values.size(), Limits::kWebRings + 1);
        }
        static_cast<void>(spiderRingStep(scale, nan, nan));
    }
}

}  // namespace

TEST(Limits, WebRings) {
    const WebRings full = spiderWebRings({0, 9999}, 1, Limits::kWebRings);
    EXPECT_EQ(full.values.size(), Limits::kWebRings);
    EXPECT_FALSE(full.isThinned);

    // 1e12 rings are wanted: every 100,010,001st of them is drawn, and the outermost one.
    const WebRings thinned = spiderWebRings({0, 1e6F}, 1e-6F, Limits::kWebRings);
    EXPECT_TRUE(thinned.isThinned);
    EXPECT_NEAR(thinned.wanted, 1e12, 1e6);
    EXPECT_EQ(thinned.values.size(), Limits::kWebRings);
    EXPECT_EQ(thinned.values.back(), 1e6F);
    EXPECT_NEAR(thinned.values[1], 100.01, 0.01);
    EXPECT_TRUE(std::is_sorted(thinned.values.begin(), thinned.values.end()));

    const std::string axis = R"(<spider-axis id="a" min="0" max="1000000"/>)";
    const std::string serie = R"(<spider-serie><spider-data-point axis-id="a" value="3"/></spider-serie>)";
    const Testing::CapturedLog log;
    EXPECT_EQ(Testing::drawingCalls(Testing::spiderWith(R"(unit-frequency="0.000001")", axis + serie), "path").size(),
              Limits::kWebRings + 1)
        << "the rings and the series";
    EXPECT_EQ(log.codes(), "34012");
    EXPECT_EQ(log.records.front().place.line, 1U);
}

TEST(Limits, WebCorners) {
    EXPECT_EQ(spiderMostRings(0), Limits::kWebRings);
    EXPECT_EQ(spiderMostRings(100), Limits::kWebRings) << "a hundred axes may have all of them";
    EXPECT_EQ(spiderMostRings(100'000), 10U);
    EXPECT_EQ(spiderMostRings(5'000'000), 2U) << "the innermost and the outermost ring stay";
    EXPECT_EQ(Testing::shown(spiderWebRings({0, 100}, 1, 10).values), "0 12 24 36 48 60 72 84 96 100")
        << "every twelfth step is the first that leaves ten rings";
}

}  // namespace VEXA
