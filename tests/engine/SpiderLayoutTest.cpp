#include "vexa/spider/SpiderLayout.h"

#include <gtest/gtest.h>

#include "tests/engine/EngineTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;

TEST(SpiderLayout, SpokesStartAtTwelveAndRunClockwise) {
    const struct {
        float count;
        float radius;
        float index;
        const char* point;
        const char* why;
    } cases[] = {
        {3, 100, 1, "0,-100", "12 o'clock"},     {3, 100, 2, "86.6,50", "4 o'clock"},
        {3, 100, 3, "-86.6,50", "8 o'clock"},    {4, 100, 2, "100,0", "3 o'clock"},
        {4, 100, 3, "0,100", "6 o'clock"},       {4, 100, 4, "-100,0", "9 o'clock"},
        {1, 100, 1, "0,-100", "a single spoke"}, {4, -50, 2, "-50,0", "a negative distance lies beyond the centre"},
        {0, 100, 1, "0,0", "no spokes"},
    };
    for (const auto& c : cases) EXPECT_EQ(shown(spiderAxisPoint(c.count, c.radius, c.index)), c.point) << c.why;
}

TEST(SpiderLayout, VerticalSpokesOfHugeWebsStayVertical) {
    const PointF lowest = spiderAxisPoint(4, 100'000, 3);
    EXPECT_EQ(shown(spiderCaptionOrigin(lowest, {20, 10}, 4)), "-10,100014") << "the caption stays below its tip";
}

TEST(SpiderLayout, CaptionsStandOutsideTheirTips) {
    const SizeF text{30, 10};
    const struct {
        PointF tip;
        const char* origin;
        const char* why;
    } cases[] = {
        {{0, -150}, "-15,-154", "centred above, raised by the offset"},
        {{0, 150}, "-15,164", "centred below: offset and height"},
        {{150, 0}, "154,5", "to the right, half a line lower"},
        {{-150, 0}, "-184,5", "to the left, ending before the offset"},
        {{130, 75}, "134,80", "slanting to the right"},
        {{0.00005F, -150}, "-15,-154", "what rounding leaves of a vertical spoke"},
        {{0, 0}, "0,0", "a web without radius"},
    };
    for (const auto& c : cases) EXPECT_EQ(shown(spiderCaptionOrigin(c.tip, text, 4)), c.origin) << c.why;
}

TEST(SpiderLayout, RingsHaveOneCornerOnEachSpoke) {
    const SpiderLayout layout(4, 150, {0, 50});
    EXPECT_EQ(shown(layout.ring(50)), "0,-150 150,0 0,150 -150,0") << "the outermost ring joins the tips";
    EXPECT_EQ(shown(layout.ring(25)), "0,-75 75,0 0,75 -75,0") << "half the scale, half the radius";
    EXPECT_EQ(shown(layout.ring(0)), "0,0 0,0 0,0 0,0") << "the innermost one collapses";
    EXPECT_EQ(shown(layout.pointOf(1, -10)), "-30,0") << "a value below the scale changes sides";
}

}  // namespace
}  // namespace VEXA
