#include "vexa/spider/SpiderScale.h"

#include <algorithm>
#include <limits>

#include "tests/engine/EngineTestTools.h"
#include "vexa/spider/SpiderLayout.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(SpiderLayout, SpokesReachBeyondTheCentre) {
    EXPECT_EQ(shown(spiderAxisPoint(4, -50, 2)), "-50,0") << "beyond the centre";
    EXPECT_EQ(shown(spiderAxisPoint(0, 100, 1)), "0,0") << "no spokes";
}

TEST(SpiderLayout, CaptionsStandOutsideTheirTips) {
    const Case<PointF, const char*> cases[] = {
        {{130, 75}, "134,80", "slanting to the right"},
        {{0.00005F, -150}, "-15,-154", "what rounding leaves of a vertical spoke"},
        {{0, 0}, "0,0", "a web without radius"},
        {spiderAxisPoint(4, 100'000, 3), "-15,100014", "spokes of huge webs stay vertical"},
    };
    for (const auto& c : cases) EXPECT_EQ(shown(spiderCaptionOrigin(c.in, {30, 10}, 4)), c.out) << c.why;
}

TEST(SpiderScale, PositionIsTheFractionOfTheScaleAndIsNotCut) {
    EXPECT_FLOAT_EQ((SpiderScale{10, 50}.position(20)), 0.25F) << "counted from the minimum, not from zero";
    EXPECT_FLOAT_EQ((SpiderScale{0, 50}.position(75)), 1.5F) << "above the scale: outside the web";
    EXPECT_FLOAT_EQ((SpiderScale{5, 5}.position(9)), 0) << "a scale without extent puts everything into the centre";
}

TEST(SpiderScale, DataScaleIncludesZeroAndIsRoundedOutward) {
    const Case<SpiderExtent, SpiderScale> cases[] = {
        {{12, 87}, {0, 90}, "all positive: from zero"},           {{-23, -7}, {-25, 0}, "all negative: up to zero"},
        {{-23, 37}, {-25, 40}, "both ends round away from zero"}, {{}, {0, 0}, "no data at all"},
        {{3e9F, 5e9F}, {0, 6e9F}, "beyond the range of 32 bits"},
    };
    for (const auto& c : cases) EXPECT_EQ(spiderDataScale(c.in), c.out) << c.why;
    SpiderExtent extent;
    for (const SpiderExtent& added : {SpiderExtent{3, 3}, {-4, 1}, {kNaN, kNaN}}) extent.add(added);
    EXPECT_EQ(extent, (SpiderExtent{-4, 3})) << "what is no number leaves the extent as it was";
    EXPECT_EQ(spiderScale({-5, 90}, {100, 2147483648.0F}), (SpiderScale{100, 100}))
        << "the data ends below the minimum: no extent, not a reversed scale";
}

TEST(SpiderScale, RingStepDividesTheScaleIntoWholeNumbers) {
    const struct {
        SpiderScale scale;
        float radius, wanted, step;
        const char* why;
    } cases[] = {
        {{0, 100}, 150, 0, 4, "at most 37 rings, and 25 is the largest divisor of 100 below"},
        {{-60, 40}, 150, 0, 4, "both ends count"},
        {{0, 90}, 150, 0, 3, "30 is the largest divisor of 90 below 38"},
        {{-30.3F, 69.7F}, 150, 0, 4, "they are 100 apart, not 99.99999"},
        {{0, 97}, 150, 0, 97, "a prime number has no divisor: one step"},
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
        const char *values, *why;
    } cases[] = {
        {{0, 100}, 30, "0 30 60 90 100", "the last step is cut short"},
        {{-25, 40}, 13, "-25 -12 1 14 27 40", "steps count from the minimum, so zero has no ring of its own"},
        {{0, 0.5F}, 0, "0 0.5", "no step: both ends"},
        {{-0.25F, 0.5F}, 0, "-0.25 0.5", "both of them fractions"},
        {{0, 10}, 50, "0 10", "a step beyond the maximum"},
        {{3, 3}, 1, "3", "no extent: one ring"},
        {{0, 100}, 33.3333F, "0 33.33 66.67 100", "rounding does not draw the outermost ring twice"},
        {{16777216, 16777220}, 0.5F, "16777216 16777218 16777220", "a step below what a float can hold"},
    };
    for (const auto& c : cases) {
        const WebRings rings = spiderWebRings(c.scale, c.step, Limits::kWebRings);
        EXPECT_EQ(shown(rings.values), c.values) << c.why;
        EXPECT_FALSE(rings.isThinned) << c.why;
    }
    for (const SpiderScale scale : {SpiderScale{kNaN, 1}, {0, kNaN}, {0, kInfinity}, {-kInfinity, kInfinity}}) {
        for (const float step : {1.0F, 1e-30F, kInfinity, kNaN})
            EXPECT_LE(spiderWebRings(scale, step, Limits::kWebRings).values.size(), Limits::kWebRings + 1);
        static_cast<void>(spiderRingStep(scale, kNaN, kNaN));
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

    const CapturedLog log;
    const std::string chart = "<spider-axis id='a' min='0' max='1000000'/><spider-serie/>";
    EXPECT_EQ(drawingCalls(spiderWith("unit-frequency='0.000001'", chart), "path").size(), Limits::kWebRings + 1)
        << "the rings and the series";
    EXPECT_EQ(log.codes(), "34012");
    EXPECT_EQ(log.records.size(), 1U);
}

TEST(Limits, WebCorners) {
    EXPECT_EQ(spiderMostRings(0), Limits::kWebRings);
    EXPECT_EQ(spiderMostRings(100), Limits::kWebRings) << "a hundred axes may have all of them";
    EXPECT_EQ(spiderMostRings(100'000), 10U);
    EXPECT_EQ(spiderMostRings(5'000'000), 2U) << "the innermost and the outermost ring stay";
    EXPECT_EQ(shown(spiderWebRings({0, 100}, 1, 10).values), "0 12 24 36 48 60 72 84 96 100")
        << "every twelfth step is the first that leaves ten rings";
    EXPECT_FALSE(spiderWebRings({0, 100}, 33.3333F, 4).isThinned) << "rounding does not ask for a fifth";
}

}  // namespace VEXA::Testing
