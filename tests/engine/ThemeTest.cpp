#include "vexa/style/VexaTheme.h"

#include "tests/engine/StyleTestTools.h"

namespace VEXA::Testing {
namespace {
using enum ChartTheme;

/// Opens what only the class itself may ask.
struct OpenTheme final : VexaTheme {
    explicit OpenTheme(ChartTheme theme, int count = 0) : VexaTheme(theme) { intialize(count); }
    using VexaTheme::getBaseColor;
    using VexaTheme::getColoredStyleBaseColor;
    using VexaTheme::getColoredStyleStrokeColor;
};

// Two of blue #4572a7 (69, 114, 167): 23.33% of the way to white, and 23.33% darker. Three of gray #616161 (97): 35% to
// white, itself, 35% darker. Of seven coloured ones orange (247, 150, 70), purple (128, 100, 162), green, red and blue
// are 23.33% darker.
TEST(Theme, PalettesRunFromLightToDark) {
    const struct {
        ChartTheme theme;
        int count, first;
        std::vector<std::string> fills;
        const char* why;
    } cases[] = {
        {RedFlat, 1, 0, {"#c0504d/1"}, "one series has the exact colour"},
        {BlueFlat, 2, 0, {"#7093bc/1", "#355780/1", "#4572a7/1"}, "beyond the palette: the base colour"},
        {GrayDarkOutline, 3, 0, {"#989898/1", "#616161/1", "#3f3f3f/1"}, "the middle one is pure"},
        {ColoredFlat, 3, 0, {"#9bbb59/1", "#c0504d/1", "#4572a7/1", "none/1"}, "green, red, blue, no base colour"},
        {ColoredFlat, 6, 0, {"#f79646/1", "#4bacc6/1", "#8064a2/1", "#9bbb59/1", "#c0504d/1", "#4572a7/1"}, "all six"},
        {ColoredFlat, -7, 0, {"none/1"}, "fewer than none"},
        {ColoredFlat, 7, 0, {"#7093bc/1", "#bd7336/1"}, "the first cycle is the short one, and lighter"},
        {ColoredFlat, 7, 3, {"#624d7c/1", "#778f44/1", "#933d3b/1", "#355780/1", "none/1"}, "the second is darker"},
        {ColoredFlat, 13, 12, {"#2d4a6d/1"}, "35% darker"},
    };
    for (const auto& c : cases) {
        OpenTheme theme(c.theme, c.count);
        for (std::size_t i = 0; i < c.fills.size(); ++i)
            EXPECT_EQ(describe(theme.getSerieFill(c.first + static_cast<int>(i))), c.fills[i]) << c.why << ' ' << i;
    }
    EXPECT_EQ(describe(OpenTheme(BlueGradient, 2).getLineChartStroke(1)), "6.66 #355780/1") << "lines have it, too";
}

// With one series, so that every fill is the family's pure colour (blue in the coloured family). #4572a7: a fifth of
// the way to white is (106, 142, 185), 85% of it (59, 97, 142).
TEST(Theme, VariantsDecideFillOutlineLineAndPlot) {
    const struct {
        ChartTheme theme;
        const char *fill, *outline, *line, *plot;
    } cases[] = {
        {None, "none/1", "empty", "6.66 none/1", "empty"},
        {GrayWhiteOutline, "#616161/1", "1 #ffffff/1", "6.66 #616161/1", "empty"},
        {GrayDarkOutline, "#616161/1", "1 #4e4e4e/1", "6.66 #616161/1", "#e7e7e7/1"},
        {ColoredFlat, "#4572a7/1", "empty", "4 #4572a7/1", "empty"},
        {ColoredDarkOutline, "#4572a7/1", "1 #345b89/1", "6.66 #4572a7/1", "#e7e7e7/1"},
        {BlueGradient, "linear 0:#6a8eb9/1 0.45:#4572a7/1 0.8:#3b618e/1", "empty", "6.66 #4572a7/1", "empty"},
        {BlueDarkOutline, "#4572a7/1", "1 #345b89/1", "6.66 #4572a7/1", "#e9edf4/1"},
        {RedDarkOutline, "#c0504d/1", "1 #8b3533/1", "6.66 #c0504d/1", "#f4e9e9/1"},
        {GreenDarkOutline, "#9bbb59/1", "1 #6f873c/1", "6.66 #9bbb59/1", "#eff3ea/1"},
        {PurpleDarkOutline, "#8064a2/1", "1 #5a4474/1", "6.66 #8064a2/1", "#edeaf0/1"},
        {AquaDarkOutline, "#4bacc6/1", "1 #317c90/1", "6.66 #4bacc6/1", "#e9f1f5/1"},
        {OrangeDarkOutline, "#f79646/1", "1 #b56a2c/1", "6.66 #f79646/1", "#fdefe9/1"},
        {static_cast<ChartTheme>(-1), "none/1", "empty", "6.66 none/1", "empty"},
        {static_cast<ChartTheme>(33), "none/1", "empty", "6.66 none/1", "empty"},
    };
    for (const auto& c : cases) {
        const int ordinal = static_cast<int>(c.theme);
        OpenTheme theme(c.theme, 1);
        const SmartPtr<Stroke> line = theme.getLineChartStroke(0);
        EXPECT_EQ(describe(theme.getSerieFill(0)), c.fill) << ordinal;
        EXPECT_EQ(describe(theme.getSerieStroke(0)), c.outline) << ordinal;
        EXPECT_EQ(describe(line), c.line) << ordinal;
        EXPECT_EQ(describe(theme.getPlotFill()), c.plot) << ordinal;
        EXPECT_EQ(describe(theme.getAxisStroke()), "1 #868686/1") << ordinal;
        EXPECT_TRUE(line->getStartLineCap() == LineCap::Round && line->getEndLineCap() == LineCap::Round) << ordinal;
    }
    EXPECT_EQ(geometryOf(OpenTheme(BlueGradient, 1).getSerieFill(0)), "0,0 1,1 box pad 1 0 0 1 0 0") << "diagonally";
}

TEST(Theme, DarkOutlinesOfTheColouredFamilyGoWithTheFillsUntinted) {
    OpenTheme theme(ColoredDarkOutline, 9);  // a cycle of three, then one of six
    const std::pair<int, const char*> cases[] = {{0, "1 #6f873c/1"}, {2, "1 #345b89/1"}, {3, "1 #b56a2c/1"},
                                                 {8, "1 #345b89/1"}, {9, "empty"},       {-1, "empty"}};
    for (const auto& [index, stroke] : cases) EXPECT_EQ(describe(theme.getSerieStroke(index)), stroke) << index;
}

TEST(Theme, PaletteIsBuiltAnewAndCopiesKeepTheirs) {
    OpenTheme theme(ColoredDarkOutline, 3);
    const VexaTheme before = theme;
    theme.intialize(1);
    EXPECT_EQ(describe(theme.getSerieFill(0)), "#4572a7/1");
    EXPECT_TRUE(theme.getSerieStroke(1).isEmpty());
    VexaTheme copy(GrayFlat);
    copy = before;
    EXPECT_EQ(describe(copy.getSerieFill(0)), "#9bbb59/1");
    EXPECT_EQ(describe(copy.getSerieStroke(1)), "1 #8b3533/1");
    copy.getSerieFill(0)->setOpacity(0);
    copy.getSerieStroke(1)->setThickness(9);
    copy.getPlotFill()->setOpacity(0);
    EXPECT_EQ(describe(copy.getSerieFill(0)), "#9bbb59/1") << "callers may change what they get";
    EXPECT_EQ(describe(copy.getSerieStroke(1)), "1 #8b3533/1");
    EXPECT_EQ(describe(copy.getPlotFill()), "#e7e7e7/1");
}

TEST(Theme, ColouredFamilyHasNoBaseColourButSixOfItsOwn) {
    OpenTheme theme(ColoredGradient);
    EXPECT_TRUE(theme.getBaseColor().isEmpty());
    EXPECT_EQ(OpenTheme(AquaGradient).getBaseColor(), VexaTheme::theme7BasicColor);
    EXPECT_EQ(theme.getColoredStyleBaseColor(1), VexaTheme::theme3BasicColor);
    EXPECT_TRUE(theme.getColoredStyleBaseColor(0).isEmpty() && theme.getColoredStyleBaseColor(7).isEmpty());
    EXPECT_EQ(theme.getColoredStyleStrokeColor(1), VexaTheme::theme3StrokeColor);
    for (const int other : {6, 0, 7, -3})
        EXPECT_EQ(theme.getColoredStyleStrokeColor(other), VexaTheme::theme8StrokeColor) << other;
}

}  // namespace
}  // namespace VEXA::Testing
