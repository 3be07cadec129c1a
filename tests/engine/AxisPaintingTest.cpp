#include "tests/engine/PlotTestTools.h"

namespace VEXA::Testing {
namespace {

const std::string kData = lineChart("A=-19 B=39 C=10 D=30");  // from -20 to 40: zero at a third of the height

/// A plot of that data whose axes have those attributes and children; values every 20.
std::string axes(const std::string& plot, const std::string& value, const std::string& category,
                 const std::string& valueParts = "", const std::string& categoryParts = "") {
    const std::string unit = value.find("unit=") == std::string::npos ? " unit='20' " : " ";
    return fixedPlot(plot, kData + "<category-axis stroke='#0000cc' " + category + ">" + categoryParts +
                               "</category-axis><value-axis stroke='#cc0000' min='-20'" + unit + value + ">" +
                               valueParts + "</value-axis>");
}

TEST(AxisPainting, LinesLieWhereTheIntersectionsSay) {
    const struct {
        const char *plot, *value, *category, *valueLine, *categoryLine, *why;
    } cases[] = {
        {"", "", "", "0,0 0,100; ", "0,66.67 200,66.67; ", "categories cross at zero, values at the first category"},
        {"", "intersection='at-minimum'", "intersection='at-minimum'", "0,0 0,100; ", "0,100 200,100; ", "left, below"},
        {"", "intersection='at-maximum'", "intersection='at-maximum'", "200,0 200,100; ", "0,0 200,0; ",
         "right, above"},
        {"", "orientation='horizontal'", "", "0,100 200,100; ", "66.67,0 66.67,100; ", "lying values"},
        {"", "", "orientation='vertical'", "0,100 200,100; ", "66.67,0 66.67,100; ", "the other axis says it"},
        {"", "orientation='vertical'", "orientation='vertical'", "0,0 0,100; ", "0,66.67 200,66.67; ", "values win"},
        {"", "orientation='horizontal' intersection='at-minimum'", "intersection='at-minimum'", "0,100 200,100; ",
         "0,0 0,100; ", "below, left"},
        {"", "orientation='horizontal' intersection='at-maximum'", "intersection='at-maximum'", "0,0 200,0; ",
         "200,0 200,100; ", "above, right"},
        {"x='30' y='50'", "", "", "30,50 30,150; ", "30,116.67 230,116.67; ", "in the plot's own coordinates"},
    };
    for (const auto& c : cases) {
        const std::string xml = axes(c.plot, c.value, c.category);
        EXPECT_EQ(linesOf(xml, "#cc0000"), c.valueLine) << c.why;
        EXPECT_EQ(linesOf(xml, "#0000cc"), c.categoryLine) << c.why;
    }
}

TEST(AxisPainting, ADeepAxisAtTheMaximumLiesOnTheBackPlane) {
    const std::string deep = "aspect-3d-view='true' aspect-3d-scene-depth='30' fill='#eee' y='50'";
    EXPECT_EQ(linesOf(axes(deep, "intersection='at-maximum'", ""), "#cc0000"), "230,20 230,120; ");
    EXPECT_EQ(linesOf(axes(deep, "intersection='at-minimum'", ""), "#cc0000"), "0,50 0,150; ") << "others in front";
}

TEST(AxisPainting, TickMarksStandOnTheSideOfTheirStyle) {
    const struct {
        const char *style, *axis, *ticks, *why;
    } cases[] = {
        {"none", "", "", "none"},
        {"inside", "intersection='at-minimum'", "0,100 6,100; 0,66.67 6,66.67; 0,33.33 6,33.33; ", "into the plot"},
        {"inside", "intersection='at-maximum'", "200,100 206,100; 200,66.67 206,66.67; 200,33.33 206,33.33; ",
         "on the right, too"},
        {"cross", "intersection='at-minimum'", "-3,100 3,100; -3,66.67 3,66.67; -3,33.33 3,33.33; ", "half and half"},
        {"outside", "intersection='at-minimum'", "-6,100 0,100; -6,66.67 0,66.67; -6,33.33 0,33.33; ", "to the left"},
        {"outside", "intersection='at-maximum'", "200,100 206,100; 200,66.67 206,66.67; 200,33.33 206,33.33; ",
         "to the right"},
        {"inside", "orientation='horizontal' intersection='at-minimum'",
         "0,100 0,94; 66.67,100 66.67,94; 133.33,100 133.33,94; ", "upward"},
        {"inside", "orientation='horizontal' intersection='at-maximum'",
         "0,0 0,-6; 66.67,0 66.67,-6; 133.33,0 133.33,-6; ", "upward, too"},
        {"cross", "orientation='horizontal' intersection='at-maximum'",
         "0,-3 0,3; 66.67,-3 66.67,3; 133.33,-3 133.33,3; ", "half and half"},
        {"outside", "orientation='horizontal' intersection='at-minimum'",
         "0,100 0,106; 66.67,100 66.67,106; 133.33,100 133.33,106; ", "downward"},
        {"outside", "orientation='horizontal' intersection='at-maximum'",
         "0,-6 0,0; 66.67,-6 66.67,0; 133.33,-6 133.33,0; ", "upward"},
    };
    for (const auto& c : cases) {
        const std::string marks = "<tick-marks stroke='#00aa00' tick-mark-length='6' tick-mark-style='" +
                                  std::string(c.style) + "'/><display-values draw-values='false'/>";
        EXPECT_EQ(linesOf(axes("", c.axis, "", marks), "#00aa00"), c.ticks)
            << c.style << ' ' << c.axis << ": " << c.why;
    }
    const auto ticks = [](const std::string& type) {
        return draw(axes("", "", "", "<tick-marks stroke='#00aa00' " + type + "/>"));
    };
    EXPECT_EQ(ticks("tick-mark-type='minor'"), ticks("")) << "the type of ticks changes nothing";
}

TEST(AxisPainting, TicksFallBetweenTheLabels) {
    const WithFonts fonts;
    const std::string parts = "<tick-marks stroke='#00aa00'/><display-values placement='between-ticks'/>";
    const std::string lying = axes("", "", "intersection='at-minimum'", "", parts);
    EXPECT_EQ(linesOf(lying, "#00aa00"), "50,100 50,105; 100,100 100,105; 150,100 150,105; 200,100 200,105; ");
    EXPECT_EQ(textsOf(lying), "A 22,114; B 72,114; C 122,114; D 172,114; ") << "in the middle of 50 px";
    const std::string upright = axes("", "orientation='horizontal'", "intersection='at-minimum'", "", parts);
    EXPECT_EQ(linesOf(upright, "#00aa00"), "-5,100 0,100; -5,75 0,75; -5,50 0,50; -5,25 0,25; ");
    EXPECT_EQ(textsOf(upright), "A -10,92.5; B -10,67.5; C -10,42.5; D -10,17.5; ") << "4 px and 6 px to the left";
}

TEST(AxisPainting, GridLinesCrossThePlot) {
    const std::string grid = "<grid-lines stroke='#00aa00'/>";
    const std::string deep = "aspect-3d-view='true' aspect-3d-scene-depth='30'";
    const std::string min = "<display-values draw-values='false'/>";
    const struct {
        std::string xml, lines;
        const char* why;
    } cases[] = {
        {axes("", "", "", min + grid), "0,100 200,100; 0,66.67 200,66.67; 0,33.33 200,33.33; ", "lying lines"},
        {axes("", "", "", "", grid), "0,0 0,100; 66.67,0 66.67,100; 133.33,0 133.33,100; 200,0 200,100; ", "upright"},
        {axes("", "", "", "", "<display-values placement='between-ticks' draw-values='false'/>" + grid),
         "50,0 50,100; 100,0 100,100; 150,0 150,100; 200,0 200,100; ", "between the labels"},
        {axes("x='30' y='50'", "unit='40'", "", min + grid), "30,150 230,150; 30,83.33 230,83.33; ",
         "plot coordinates"},
        {axes("", "", "", "<grid-lines stroke='#00aa00' type='none'/>"), "", "none"},
        {axes(deep, "unit='40'", "", min + grid), "30,70 230,70; 0,100 30,70; 30,3.33 230,3.33; 0,33.33 30,3.33; ",
         "the back wall, each with the left wall"},
        {axes(deep, "unit='40' orientation='horizontal'", "", min + grid),
         "30,-30 30,70; 0,100 30,70; 163.33,-30 163.33,70; 133.33,100 163.33,70; ", "the back wall and the floor"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(linesOf(c.xml, "#00aa00"), c.lines) << c.why;
    }
    EXPECT_EQ(drawingCalls(axes("", "", "fill='red'", "", grid), "line").at(0).fill, "") << "lines have no fill";
}

TEST(AxisPainting, DepthEdgesShowTheCategoryAxisInSpace) {
    const std::string deep = "aspect-3d-view='true' aspect-3d-scene-depth='30'";
    const std::string axisInFront = "0,66.67 200,66.67; ";
    const struct {
        const char *value, *category, *lines, *why;
    } cases[] = {
        {"", "", "30,36.67 230,36.67; 0,100 200,100; 0,66.67 200,66.67; ",
         "at zero on the back wall, the floor's front edge, and the axis itself"},
        {"", "intersection='at-minimum'", "30,70 230,70; 0,100 200,100; ", "on the floor: its edge is the axis"},
        {"", "intersection='at-maximum'", "0,0 200,0; 0,100 200,100; 30,-30 230,-30; ", "at the top: swapped planes"},
        {"orientation='horizontal'", "", "96.67,-30 96.67,70; 0,0 0,100; 66.67,0 66.67,100; ", "upright"},
        {"orientation='horizontal'", "intersection='at-maximum'", "200,0 200,100; 230,-30 230,70; ",
         "at the right edge there is no other edge"},
    };
    for (const auto& c : cases) EXPECT_EQ(linesOf(axes(deep, c.value, c.category), "#0000cc"), c.lines) << c.why;
}

}  // namespace
}  // namespace VEXA::Testing
