#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/AxisCaption.h"
#include "vexa/cartesian/PlotLayout.h"

namespace VEXA::Testing {
namespace {

std::string shown(const RectF& rect) {
    return Testing::shown(PointF{rect.x, rect.y}) + ' ' + Testing::shown(PointF{rect.width, rect.height});
}

// Labels 30 px wide, 4 px away, 5 px out at both ends of an upright axis of 200 px: 34 + 16 + 6 = 56 px across.
AxisSpace upright(bool isAtMaximum) { return {true, isAtMaximum, {isAtMaximum ? 4.0F : -34.0F, -5, 30, 210}, 16, 6}; }

// Labels 10 px high, 4 px away, 10 px out on the left and 20 px on the right of one of 400 px: 14 + 16 + 6 = 36 px.
AxisSpace lying(bool isAtMaximum) { return {false, isAtMaximum, {-10, isAtMaximum ? -14.0F : 4.0F, 430, 10}, 16, 6}; }

TEST(PlotLayout, LabelsAndCaptionsOfBothAxesStayInTheArea) {
    const RectF area{100, 50, 400, 200};
    const struct {
        AxisSpace value, category;
        const char *flat, *deep, *why;  // deep: with a depth of 20 px
    } cases[] = {
        {upright(false), lying(false), "156,55 324,159", "156,70 304,144", "values left, categories below"},
        {upright(true), lying(false), "110,55 334,159", "110,70 314,144", "values right: 10 px for labels on the left"},
        {upright(false), lying(true), "156,86 324,159", "156,106 304,139", "categories above"},
        {upright(true), lying(true), "110,86 334,159", "110,106 314,139", "values right, categories above"},
        {lying(false), upright(false), "156,50 324,159", "156,70 324,139", "values below, categories left"},
        {lying(false), upright(true), "110,50 334,159", "110,70 314,139", "categories right"},
        {lying(true), upright(false), "156,91 324,159", "156,111 324,139", "values above"},
        {lying(true), upright(true), "110,91 334,159", "110,111 314,139", "values above, categories right"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(shown(layoutPlotRect(area, c.value, c.category, {false, 20})), c.flat) << c.why;
        EXPECT_EQ(shown(layoutPlotRect(area, c.value, c.category, {true, 20})), c.deep) << c.why;
    }
}

TEST(PlotLayout, OverflowsBeyondTheOtherAxisTakeRoom) {
    const auto shrunk = [](const AxisSpace& value, const AxisSpace& category, float depth) {
        return shown(layoutPlotRect({0, 0, 400, 200}, value, category, {depth > 0, depth}));
    };
    const AxisSpace wide{false, false, {-70, 4, 500, 10}, 16, 6};  // 70 px to the left, 30 px to the right
    EXPECT_EQ(shrunk(upright(false), wide, 0), "70,5 300,159") << "14 px more on the left than the values take";
    const AxisSpace leaning{false, false, {-40, 4, 420, 10}, 16, 6};  // 20 px inside the right end
    EXPECT_EQ(shrunk(upright(false), leaning, 0), "56,5 364,159") << "what ends inside gives room back";
    const AxisSpace tall{true, false, {-34, -50, 30, 300}, 16, 6};  // 50 px out at the top and at the foot
    EXPECT_EQ(shrunk(tall, lying(false), 0), "56,50 324,100") << "14 px more at the far side than the categories take";
    EXPECT_EQ(shrunk(tall, lying(false), 20), "56,50 304,100") << "30 px beyond the depth, then the depth itself";
    EXPECT_EQ(shrunk(lying(false), tall, 0), "56,14 324,100") << "categories: 50 px off the height, 14 of them below";
    const AxisSpace none{true, false, {}, 0, 0};
    EXPECT_EQ(shrunk(none, {false, false, {}, 0, 0}, 0), "0,0 400,200") << "nothing to make room for";
    EXPECT_EQ(shrunk({true, false, {-450, 0, 440, 10}, 0, 0}, {false, false, {}, 0, 0}, 0), "450,0 -50,200")
        << "no room is left";
}

TEST(AxisCaption, StandsOutsideTheLabels) {
    const struct {
        bool isCategory, isVertical, isAtMaximum;
        RectF axis;
        bool isLabelAtEdge;
        CaptionFrame frame;
        const char* why;
    } cases[] = {
        {false, true, true, {400, 0, 0, 200}, false, {{41, 70}, 90}, "right: 30 + 5 + 4 + 2 px out, read downward"},
        {false, true, false, {0, 0, 0, 200}, false, {{-41, 130}, -90}, "left, read upward"},
        {false, true, false, {100, 0, 0, 200}, true, {{-41, 130}, -90}, "values stay at their line"},
        {true, true, false, {0, 0, 0, 200}, false, {{-41, 130}, -90}, "categories on the edge likewise"},
        {true, true, false, {100, 0, 0, 200}, true, {{-141, 130}, -90}, "inside, labels at the edge"},
        {true, true, false, {100, 0, 0, 200}, false, {{-106, 130}, -90}, "inside, labels there: the edge is free"},
        {false, false, true, {0, 0, 400, 0}, false, {{170, -21}, 0}, "above"},
        {false, false, false, {0, 200, 400, 0}, false, {{170, 29}, 0}, "below: 10 + 10 + 5 + 4 px"},
        {false, false, false, {0, 150, 400, 0}, false, {{170, 79}, 0}, "values inside: at the foot all the same"},
        {true, false, false, {0, 150, 400, 0}, true, {{170, 79}, 0}, "categories inside, labels at the foot"},
        {true, false, false, {0, 150, 400, 0}, false, {{170, 64}, 0}, "labels inside: the foot is free"},
        {true, false, false, {0, 200, 400, 0}, false, {{170, 29}, 0}, "on the foot"},
        {true, false, false, {0, 0, 400, 0}, false, {{170, 229}, 0}, "at the top edge"},
    };
    for (const auto& c : cases) {
        CaptionSpace space;
        space.isCategory = c.isCategory;
        space.isVertical = c.isVertical;
        space.isAtMaximum = c.isAtMaximum;
        space.axis = c.axis;
        space.plotHeight = 200;
        space.text = {60, 10};
        space.offset = 4;
        space.descent = 2;
        space.labels = {30, 10};
        space.labelOffset = 5;
        space.isLabelAtEdge = c.isLabelAtEdge;
        const CaptionFrame frame = captionFrame(space);
        EXPECT_EQ(Testing::shown(frame.origin), Testing::shown(c.frame.origin)) << c.why;
        EXPECT_EQ(frame.angle, c.frame.angle) << c.why;
    }
}

}  // namespace
}  // namespace VEXA::Testing
