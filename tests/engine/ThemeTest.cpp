#include "tests/engine/StyleTestTools.h"
#include "vexa/style/VexaTheme.h"

namespace VEXA {
namespace {

using namespace Testing;
using enum ChartTheme;

/// Opens what only the class itself may ask.
struct OpenTheme final : VexaTheme {
    using VexaTheme::getBaseColor;
    using VexaTheme::getColoredStyleBaseColor;
    using VexaTheme::getColoredStyleStrokeColor;
    using VexaTheme::isColoredStyle;
    using VexaTheme::VexaTheme;
};

/// The colours of the fills from index 0 on.
std::string fills(ChartTheme theme, int count, int shown) {
    VexaTheme palette(theme);
    palette.intialize(count);
    std::string text;
    for (int index = 0; index < shown; ++index) text += describe(palette.getSerieFill(index)) + " ";
    return text;
}

// Two of blue #4572a7 (69, 114, 167): 23.33% of the way to white, and 23.33% darker. Three of gray #616161 (97): 35% to
// white, itself, 35% darker.
TEST(Theme, SingleColouredFamiliesRunFromLightToDark) {
    EXPECT_EQ(fills(RedFlat, 1, 1), "#c0504d/1 ") << "one series has the exact colour";
    EXPECT_EQ(fills(BlueFlat, 2, 2), "#7093bc/1 #355780/1 ");
    EXPECT_EQ(fills(GrayDarkOutline, 3, 3), "#989898/1 #616161/1 #3f3f3f/1 ");
    EXPECT_EQ(fills(GrayFlat, 1, 3), "#616161/1 #616161/1 #616161/1 ") << "beyond the palette: the base colour";
    EXPECT_EQ(fills(GrayFlat, 0, 1), "#616161/1 ") << "no series";
    EXPECT_EQ(fills(GrayFlat, -5, 1), "#616161/1 ") << "fewer than none";
}

TEST(Theme, ColouredFamilyTakesSixColoursInReverse) {
    EXPECT_EQ(fills(ColoredFlat, 3, 3), "#9bbb59/1 #c0504d/1 #4572a7/1 ") << "green, red, blue";
    EXPECT_EQ(fills(ColoredFlat, 6, 6), "#f79646/1 #4bacc6/1 #8064a2/1 #9bbb59/1 #c0504d/1 #4572a7/1 ");
    EXPECT_EQ(fills(ColoredFlat, 3, 4).substr(30), "none/1 ") << "beyond the palette there is no colour";
    for (const int count : {0, -1, -6, -7}) EXPECT_EQ(fills(ColoredFlat, count, 1), "none/1 ") << count;
}

TEST(Theme, ColouredCyclesAreTintedAndTheFirstIsTheShortOne) {
    VexaTheme seven(ColoredFlat);
    seven.intialize(7);
    // Orange (247, 150, 70), purple (128, 100, 162), green, red and blue, each 23.33% darker.
    const std::pair<int, const char*> expected[] = {{0, "#7093bc/1"}, {1, "#bd7336/1"}, {3, "#624d7c/1"},
                                                    {4, "#778f44/1"}, {5, "#933d3b/1"}, {6, "#355780/1"},
                                                    {7, "none/1"}};
    for (const auto& [index, color] : expected) EXPECT_EQ(describe(seven.getSerieFill(index)), color) << index;

    VexaTheme thirteen(ColoredFlat);
    thirteen.intialize(13);
    EXPECT_EQ(describe(thirteen.getSerieFill(0)), "#86a3c6/1") << "blue, 35% of the way to white";
    EXPECT_EQ(describe(thirteen.getSerieFill(1)), "#f79646/1") << "the middle cycle is pure";
    EXPECT_EQ(describe(thirteen.getSerieFill(12)), "#2d4a6d/1") << "blue, 35% darker";
}

TEST(Theme, GradientVariantRunsDiagonallyFromLighterToDarker) {
    // #4572a7: a fifth of the way to white is (106, 142, 185), 85% of it (59, 97, 142).
    VexaTheme theme(BlueGradient);
    theme.intialize(1);
    const SmartPtr<Brush> brush = theme.getSerieFill(0);
    EXPECT_EQ(describe(brush), "linear 0:#6a8eb9/1 0.45:#4572a7/1 0.8:#3b618e/1");
    const auto& linear = static_cast<const LinearGradientBrush&>(*brush);
    EXPECT_EQ(linear.start(), (PointF{0, 0}));
    EXPECT_EQ(linear.end(), (PointF{1, 1}));
    EXPECT_EQ(linear.getUnits(), GradientUnits::ObjectBoundingBox);
    EXPECT_EQ(linear.getSpreadMethod(), GradientSpreadMethod::Pad);
}

struct VariantCase {
    ChartTheme theme;
    const char* fill;
    const char* outline;
    float lineWidth;
    const char* plot;
};

// With one series, so that every fill is the family's pure colour (blue in the coloured family).
const VariantCase kVariantCases[] = {
    {None, "none/1", "empty", 6.66F, "empty"},
    {GrayFlat, "#616161/1", "empty", 4, "empty"},
    {GrayWhiteOutline, "#616161/1", "1 #ffffff/1", 6.66F, "empty"},
    {GrayGradient, "linear", "empty", 6.66F, "empty"},
    {GrayDarkOutline, "#616161/1", "1 #4e4e4e/1", 6.66F, "#e7e7e7/1"},
    {ColoredFlat, "#4572a7/1", "empty", 4, "empty"},
    {ColoredWhiteOutline, "#4572a7/1", "1 #ffffff/1", 6.66F, "empty"},
    {ColoredGradient, "linear", "empty", 6.66F, "empty"},
    {ColoredDarkOutline, "#4572a7/1", "1 #345b89/1", 6.66F, "#e7e7e7/1"},
    {BlueFlat, "#4572a7/1", "empty", 4, "empty"},
    {BlueWhiteOutline, "#4572a7/1", "1 #ffffff/1", 6.66F, "empty"},
    {BlueGradient, "linear", "empty", 6.66F, "empty"},
    {BlueDarkOutline, "#4572a7/1", "1 #345b89/1", 6.66F, "#e9edf4/1"},
    {RedFlat, "#c0504d/1", "empty", 4, "empty"},
    {RedDarkOutline, "#c0504d/1", "1 #8b3533/1", 6.66F, "#f4e9e9/1"},
    {GreenFlat, "#9bbb59/1", "empty", 4, "empty"},
    {GreenDarkOutline, "#9bbb59/1", "1 #6f873c/1", 6.66F, "#eff3ea/1"},
    {PurpleFlat, "#8064a2/1", "empty", 4, "empty"},
    {PurpleDarkOutline, "#8064a2/1", "1 #5a4474/1", 6.66F, "#edeaf0/1"},
    {AquaFlat, "#4bacc6/1", "empty", 4, "empty"},
    {AquaDarkOutline, "#4bacc6/1", "1 #317c90/1", 6.66F, "#e9f1f5/1"},
    {OrangeFlat, "#f79646/1", "empty", 4, "empty"},
    {OrangeWhiteOutline, "#f79646/1", "1 #ffffff/1", 6.66F, "empty"},
    {OrangeGradient, "linear", "empty", 6.66F, "empty"},
    {OrangeDarkOutline, "#f79646/1", "1 #b56a2c/1", 6.66F, "#fdefe9/1"},
    {static_cast<ChartTheme>(33), "none/1", "empty", 6.66F, "empty"},
    {static_cast<ChartTheme>(-1), "none/1", "empty", 6.66F, "empty"},
};

TEST(Theme, VariantsDecideFillOutlineLineAndPlot) {
    for (const VariantCase& c : kVariantCases) {
        const int ordinal = static_cast<int>(c.theme);
        VexaTheme theme(c.theme);
        theme.intialize(1);
        EXPECT_EQ(describe(theme.getSerieFill(0)).rfind(c.fill, 0), 0U) << ordinal;
        EXPECT_EQ(describe(theme.getSerieStroke(0)), c.outline) << ordinal;
        EXPECT_EQ(describe(theme.getPlotFill()), c.plot) << ordinal;
        EXPECT_EQ(describe(theme.getAxisStroke()), "1 #868686/1") << ordinal;
        const SmartPtr<Stroke> line = theme.getLineChartStroke(0);
        EXPECT_EQ(line->getThickness(), c.lineWidth) << ordinal;
        EXPECT_EQ(line->getStartLineCap(), LineCap::Round) << ordinal;
        EXPECT_EQ(line->getEndLineCap(), LineCap::Round) << ordinal;
    }
}

TEST(Theme, LinesHaveThePaletteColour) {
    VexaTheme theme(BlueGradient);
    theme.intialize(2);
    EXPECT_EQ(describe(theme.getLineChartStroke(1)), "6.66 #355780/1");
}

TEST(Theme, DarkOutlinesOfTheColouredFamilyGoWithTheFillsUntinted) {
    VexaTheme theme(ColoredDarkOutline);
    theme.intialize(9);  // a cycle of three, then one of six
    EXPECT_EQ(describe(theme.getSerieStroke(0)), "1 #6f873c/1");
    EXPECT_EQ(describe(theme.getSerieStroke(2)), "1 #345b89/1");
    EXPECT_EQ(describe(theme.getSerieStroke(3)), "1 #b56a2c/1");
    EXPECT_EQ(describe(theme.getSerieStroke(8)), "1 #345b89/1");
    EXPECT_TRUE(theme.getSerieStroke(9).isEmpty());
    EXPECT_TRUE(theme.getSerieStroke(-1).isEmpty());
}

TEST(Theme, PaletteIsBuiltAnewAndCopiesKeepTheirs) {
    VexaTheme theme(ColoredDarkOutline);
    theme.intialize(3);
    const VexaTheme before = theme;
    theme.intialize(1);
    EXPECT_EQ(describe(theme.getSerieFill(0)), "#4572a7/1");
    EXPECT_TRUE(theme.getSerieStroke(1).isEmpty());
    VexaTheme copy(GrayFlat);
    copy = before;
    EXPECT_EQ(describe(copy.getSerieFill(0)), "#9bbb59/1");
    EXPECT_EQ(describe(copy.getSerieStroke(1)), "1 #8b3533/1");
}

TEST(Theme, CallersMayChangeWhatTheyGet) {
    VexaTheme theme(BlueDarkOutline);
    theme.intialize(1);
    theme.getSerieFill(0)->setOpacity(0);
    theme.getSerieStroke(0)->setThickness(9);
    theme.getPlotFill()->setOpacity(0);
    EXPECT_EQ(describe(theme.getSerieFill(0)), "#4572a7/1");
    EXPECT_EQ(describe(theme.getSerieStroke(0)), "1 #345b89/1");
    EXPECT_EQ(describe(theme.getPlotFill()), "#e9edf4/1");
}

TEST(Theme, ColouredFamilyHasNoBaseColourButSixOfItsOwn) {
    OpenTheme theme(ColoredGradient);
    EXPECT_TRUE(theme.isColoredStyle());
    EXPECT_FALSE(OpenTheme(GrayDarkOutline).isColoredStyle());
    EXPECT_FALSE(OpenTheme(BlueFlat).isColoredStyle());
    EXPECT_TRUE(theme.getBaseColor().isEmpty());
    EXPECT_EQ(OpenTheme(AquaGradient).getBaseColor(), VexaTheme::theme7BasicColor);
    EXPECT_EQ(theme.getColoredStyleBaseColor(1), VexaTheme::theme3BasicColor);
    EXPECT_EQ(theme.getColoredStyleBaseColor(6), VexaTheme::theme8BasicColor);
    EXPECT_TRUE(theme.getColoredStyleBaseColor(0).isEmpty());
    EXPECT_TRUE(theme.getColoredStyleBaseColor(7).isEmpty());
    EXPECT_EQ(theme.getColoredStyleStrokeColor(1), VexaTheme::theme3StrokeColor);
    for (const int other : {6, 0, 7, -3})
        EXPECT_EQ(theme.getColoredStyleStrokeColor(other), VexaTheme::theme8StrokeColor) << other;
}

}  // namespace
}  // namespace VEXA
