#include "vexa/legend/LegendLayout.h"

#include <limits>

#include "tests/engine/EngineTestTools.h"

namespace VEXA::Testing {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr auto kTop = LegendPlacement::Top;
constexpr auto kLeft = LegendPlacement::Left;
constexpr auto kUpright = ReferenceOrientation::Rotate0;
constexpr auto kTurned90 = ReferenceOrientation::Rotate90;
constexpr auto kTurned180 = ReferenceOrientation::Rotate180;
constexpr auto kTurned270 = ReferenceOrientation::Rotate270;

/// "x,y width x height"
std::string boxOf(const RectF& rect) {
    return shown(PointF{rect.x, rect.y}) + ' ' + shown(rect.width) + " x " + shown(rect.height);
}

TEST(LegendLayout, ItemsStandInARowWhenTheyFitElseInAList) {
    const LegendItemSize plain{40, 6, {40, 12}};
    const struct {
        std::vector<LegendItemSize> items;
        float padding, room;
        const char *origins, *why;
    } cases[] = {
        {{plain, plain, plain}, 5, 132, "5,5 51,5 97,5", "three items and two gaps, exactly"},
        {{plain, plain, plain}, 5, 131.9F, "5,5 5,17 5,29", "a little less: one below the other, without gaps"},
        {{{40, 50, {40, 12}}, {40, 4, {40, 12}}, plain},
         5,
         130,
         "5,5 95,5 139,5",
         "each item has its own gap behind it, but the first one's is not counted"},
        {{{30, 6, {44, 26}}, plain}, 0, 76, "0,0 36,0", "a row steps by what the captions take on one line"},
        {{{80, 6, {44, 26}}, plain}, 0, 76, "0,0 0,26", "a list by the lines that they are broken into"},
        {{plain, plain}, -3, 86, "-3,-3 43,-3", "a negative padding"},
        {{{kInfinity, 6, {40, 12}}, plain}, 5, 132, "5,5 5,17", "more than any room"},
        {{plain, plain}, 5, kNaN, "5,5 51,5", "room that is no number"},
        {{}, 5, 132, "", "no items"},
    };
    for (const auto& c : cases) {
        std::vector<PointF> origins;
        for (const RectF& rect : layoutLegendItems(c.items, c.padding, c.room)) origins.push_back({rect.x, rect.y});
        EXPECT_EQ(shown(origins), c.origins) << c.why;
    }
    EXPECT_EQ(boxOf(layoutLegendItems(std::vector{plain}, 5, 132).at(0)), "5,5 40 x 12");
}

TEST(LegendLayout, DockedLegendsShrinkToTheirItems) {
    const RectF side{340, 8, 60, 300};
    const RectF edge{7, 260, 400, 40};
    const struct {
        LegendPlacement placement;
        RectF area;
        std::vector<RectF> items;
        const char* fitted;
        float shift;
        const char* why;
    } cases[] = {
        {kLeft, side, {{5, 5, 30, 24}, {41, 5, 10, 12}}, "340,141.5 60 x 17", 0, "at the side the last item decides"},
        {kTop, edge, {{0, 0, 50, 12}, {56, 0, 40, 14}}, "152,260 96 x 40", 13, "at the top the highest of a row"},
        {kTop, edge, {{0, 0, 70, 12}, {0, 12, 50, 12}}, "165,260 70 x 40", 0, "a list has the widest item's width"},
        {kTop, edge, {{0, 0, 0, 60}}, "200,260 0 x 40", -10, "a row higher than the legend stands out on both sides"},
        {kTop, edge, {{-90, -90, 50, 12}}, "220,260 -40 x 40", 0, "a padding that leads out of the legend"},
    };
    for (const auto& c : cases) {
        const LegendFit fitted = fitLegend(c.placement, c.area, c.items);
        EXPECT_EQ(boxOf(fitted.area), c.fitted) << c.why;
        EXPECT_EQ(fitted.shift, c.shift) << c.why;
    }
}

TEST(LegendLayout, CountsItemsThatShowNothingOfThemselves) {
    const RectF box{10, 10, 100, 50};
    const RectF tall{340, -100, 60, 450};  // 100 px above the page and 50 below: its own 100 to 400 show
    const struct {
        RectF area;
        ReferenceOrientation orientation;
        RectF item;
        bool isHidden;
        const char* why;
    } cases[] = {
        {box, kUpright, {99, 49, 40, 12}, false, "a pixel of its corner shows"},
        {box, kUpright, {100, 5, 40, 12}, true, "to the right of the box"},
        {box, kUpright, {5, 50, 40, 12}, true, "below the box"},
        {box, kUpright, {-40, 5, 40, 12}, true, "to the left of it"},
        {box, kUpright, {0, 0, 0, 0}, false, "an item without extent at its corner"},
        {{10, 10, 100, 0}, kUpright, {5, -6, 40, 12}, true, "a box without height shows nothing"},
        {box, kTurned90, {5, 60, 40, 12}, false, "a turned box is 50 wide and 100 high to its content"},
        {box, kTurned90, {50, 5, 40, 12}, true, "not wider"},
        {box, kTurned270, {5, 99, 40, 12}, false, "turned the other way likewise"},
        {tall, kUpright, {5, 80, 40, 12}, true, "above the page"},
        {tall, kUpright, {5, 90, 40, 12}, false, "partly on it"},
        {tall, kUpright, {5, 400, 40, 12}, true, "below the page"},
        {tall, kTurned90, {80, 5, 12, 12}, true, "above the page when turned"},
        {tall, kTurned90, {399, 5, 12, 12}, false, "the last that shows"},
        {tall, kTurned180, {5, 90, 40, 12}, false, "upside down its 50 to 350 show"},
        {tall, kTurned180, {5, 350, 40, 12}, true, "and no more"},
        {tall, kTurned270, {39, 5, 12, 12}, false, "turned the other way it begins at the foot: the first that shows"},
        {tall, kTurned270, {350, 5, 12, 12}, true, "and its end is above the page"},
        {{0, 0, kNaN, kNaN}, kUpright, {5, 5, 40, 12}, false, "nobody knows"},
    };
    for (const auto& c : cases) {
        const std::vector<RectF> items(3, c.item);
        EXPECT_EQ(countHiddenItems(items, c.orientation, c.area, {0, 0, 400, 300}), c.isHidden ? 3U : 0U) << c.why;
        RectF moved = c.area;
        moved.x += 50;
        moved.y -= 70;
        EXPECT_EQ(countHiddenItems(items, c.orientation, moved, {50, -70, 400, 300}), c.isHidden ? 3U : 0U)
            << c.why << ", on a page whose content begins elsewhere";
    }
}

}  // namespace
}  // namespace VEXA::Testing
