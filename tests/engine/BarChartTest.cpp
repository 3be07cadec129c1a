#include "tests/engine/PlotTestTools.h"
#include "vexa/cartesian/VexaBar.h"

namespace VEXA::Testing {
namespace {

/// A series with bars of 10 px from "5=4 10=-2", filled with #0N0N0N.
std::string bars(int number, const std::string& data, const std::string& attributes = "") {
    std::string text = points(data);
    for (std::size_t at = 0; (at = text.find("<data-point ", at)) != std::string::npos; at += 12)
        text.insert(at + 12, "width='10' ");
    const std::string digits = "0" + std::to_string(number);
    return "<serie fill='#" + digits + digits + digits + "' " + attributes + ">" + text + "</serie>";
}

/// On 200 px by 100 px: upright a category is 10 px and a value 5 px, lying a category is 5 px and a value 10 px.
std::string barChart(const std::string& axes, const std::string& attributes, const std::string& series,
                     const std::string& plot = "") {
    return fixedPlot(plot, "<bar-chart " + attributes + ">" + series + "</bar-chart>" + axes);
}

/// What is filled, in painting order: "N box; " of a rectangle, "N points; " of a path.
std::string bodiesOf(const std::string& xml) {
    std::string text;
    for (const DrawCall& call : drawingCalls(xml)) {
        if (call.fill.size() == 7 && call.fill.starts_with("#0"))
            text += call.fill.substr(2, 1) + ' ' + (call.op == "rectangle" ? call.box : call.points) + "; ";
    }
    return text;
}

TEST(BarChart, FlatBarsReachFromTheOriginToTheValue) {
    const std::string data = "5=4 10=-4 15=0";
    EXPECT_EQ(bodiesOf(barChart(kUpright, "", bars(1, data))), "1 45,30 10 x 20; 1 95,50 10 x 20; 1 145,50 10 x 0; ");
    EXPECT_EQ(bodiesOf(barChart(kLying, "", bars(1, data))), "1 100,70 40 x 10; 1 60,45 40 x 10; 1 100,20 0 x 10; ");
    EXPECT_EQ(bodiesOf(barChart(kUpright, "", bars(1, "5=4 10= 15=2"))), "1 45,30 10 x 20; 1 145,40 10 x 10; ")
        << "a point without value has no bar";
    EXPECT_EQ(bodiesOf(barChart(kUpright, "", "<serie fill='#010101'>" + points("5=4") + "</serie>")),
              "1 40,30 20 x 20; ")
        << "20 px wide by default";
    const CapturedLog log;
    EXPECT_EQ(bodiesOf(barChart(kUpright, "", bars(1, "5=4 5=-4"))), "1 45,30 10 x 20; ") << "the first of a category";
}

TEST(BarChart, GroupsTheBarsOfACategory) {
    const std::string three = bars(1, "10=2") + bars(2, "10=4") + bars(3, "10=6");
    const std::string hole = bars(1, "10=2") + bars(2, "2=4") + bars(3, "10=6");
    const std::string mixed = bars(1, "10=3") + bars(2, "10=-2") + bars(3, "10=4");
    const std::string spaced = "grouping='clustered' cluster-spacing='2'";
    const struct {
        std::string axes, attributes, series;
        const char *bodies, *why;
    } cases[] = {
        {kUpright, spaced, three, "1 83,40 10 x 10; 2 95,30 10 x 20; 3 107,20 10 x 30; ", "side by side"},
        {kUpright, "", three, "1 85,40 10 x 10; 2 95,30 10 x 20; 3 105,20 10 x 30; ", "clustered by default, no gap"},
        {kUpright, spaced, hole, "1 89,40 10 x 10; 2 15,30 10 x 20; 3 101,20 10 x 30; ", "two of three are a group"},
        {kLying, spaced, three, "3 100,57 60 x 10; 2 100,45 40 x 10; 1 100,33 20 x 10; ", "lying: the last one first"},
        {kUpright, "grouping='stacked'", mixed, "3 95,15 10 x 20; 2 95,50 10 x 10; 1 95,35 10 x 15; ",
         "the third on the first, the negative one below; the last one first"},
        {kLying, "grouping='stacked'", mixed, "3 130,45 40 x 10; 2 80,45 20 x 10; 1 100,45 30 x 10; ", "lying"},
        {kUpright, "grouping='overlapped'", mixed, "1 95,35 10 x 15; 2 95,50 10 x 10; 3 95,30 10 x 20; ",
         "later ones over earlier ones"},
        {kLying, "grouping='overlapped'", mixed, "1 100,45 30 x 10; 2 80,45 20 x 10; 3 100,45 40 x 10; ", "lying"},
        {kUpright, "grouping='stacked'", bars(1, "10=3") + bars(2, "10=") + bars(3, "10=1"),
         "3 95,30 10 x 5; 1 95,35 10 x 15; ", "a point without value adds nothing to a stack"},
        {kUpright, spaced, bars(1, "10=2"), "1 95,40 10 x 10; ", "a single series is centred"},
    };
    for (const auto& c : cases) EXPECT_EQ(bodiesOf(barChart(c.axes, c.attributes, c.series)), c.bodies) << c.why;
}

TEST(BarChart, APointWithoutValueIsNoPartOfAStack) {
    const std::string raised = "<category-axis min='0' max='20'/><value-axis min='5' max='15'/>";
    EXPECT_EQ(bodiesOf(barChart(raised, "grouping='stacked'", bars(1, "10=") + bars(2, "10=3"))), "2 95,100 10 x 20; ")
        << "2 units of 10 px below an origin at 5, not below what would be a 0";
}

TEST(BarChart, ASingleSeriesIsOverlappedFromThenOn) {
    const auto root = load(barChart(kUpright, "grouping='stacked'", bars(1, "10=2")));
    const auto& chart = *plotOf(*root).getCharts()[0];
    EXPECT_EQ(plotOf(*root).getStackedTotal(false, Value(10.0), true), 2);
    root->render(make<NullSurface>(), 400, 300);
    EXPECT_EQ(chart.getGrouping(), SerieGrouping::Overlapped);
    EXPECT_EQ(VexaBar().getGrouping(), SerieGrouping::Clustered) << "the default of the others stays";
}

TEST(BarChart, ClipsBodiesToThePlotAndItsDepth) {
    const auto clipOf = [](const std::string& plot) {
        for (const DrawCall& call : drawingCalls(barChart(kUpright, "", bars(1, "10=2"), plot)))
            if (call.fill == "#010101") return call.clips.back();
        return std::string("nothing is painted");
    };
    EXPECT_EQ(clipOf(""), "-1,-1 200,-1 200,100 -1,100 | 1 0 0 1 0 0");
    EXPECT_EQ(clipOf("x='7' y='9'"), "-1,-1 200,-1 200,100 -1,100 | 1 0 0 1 7 9");
    EXPECT_EQ(clipOf("aspect-3d-view='true' aspect-3d-scene-depth='20'"),
              "-1,-15.14 214.14,-15.14 214.14,100 -1,100 | 1 0 0 1 0 0")
        << "20 px along the diagonal";
}

/// Plots in the 3-D view: bodies 8 px deep, sides of half the light.
const std::string kDeep = "aspect-3d-view='true' aspect-3d-chart-depth='8' aspect-3d-shading='0.5'";

TEST(BarChart, BoxesShowTheirFaces) {
    const struct {
        std::string axes, attributes, series;
        const char *bodies, *why;
    } cases[] = {
        {kUpright, "", bars(8, "5=4"),
         "8 41,50 51,50 59,42 49,42; 8 41,30 51,30 51,50 41,50; 4 51,30 51,50 59,42 59,22; 4 41,30 51,30 59,22 49,22; ",
         "base, front, right side and end; sides are half as light"},
        {kUpright, "", bars(8, "5=-4"),
         "4 41,50 51,50 59,42 49,42; 8 41,70 51,70 51,50 41,50; 4 51,70 51,50 59,42 59,62; ", "hanging"},
        {kUpright, "", bars(8, "5=0"), "", "none without length"},
        {kLying, "", bars(8, "5=4"),
         "4 100,80 140,80 148,72 108,72; 8 100,70 140,70 140,80 100,80; 4 140,70 140,80 148,72 148,62; "
         "4 100,70 140,70 148,62 108,62; ",
         "lower side, front, end, upper side"},
        {kLying, "", bars(8, "5=-4"),
         "4 100,80 60,80 68,72 108,72; 8 100,70 60,70 60,80 100,80; 4 100,70 100,80 108,72 108,62; "
         "4 100,70 60,70 68,62 108,62; ",
         "each from the base to the value: lower side, front, base, upper side"},
        {kUpright, "grouping='stacked'", bars(8, "5=4") + bars(6, "5=2"),
         "6 41,30 51,30 59,22 49,22; 6 41,20 51,20 51,30 41,30; 3 51,20 51,30 59,22 59,12; 3 41,20 51,20 59,12 49,12; "
         "6 41,20 51,20 51,30 41,30; 3 51,20 51,30 59,22 59,12; "
         "8 41,30 51,30 51,50 41,50; 4 51,30 51,50 59,42 59,22; ",
         "the last one has the end, all have front and side"},
        {kUpright, "grouping='stacked'", bars(8, "5=-4"),
         "4 41,50 51,50 59,42 49,42; 8 41,70 51,70 51,50 41,50; 4 51,70 51,50 59,42 59,62; ", "no stack of one series"},
    };
    for (const auto& c : cases) {
        const std::string xml = barChart(c.axes, c.attributes, c.series, kDeep);
        EXPECT_EQ(bodiesOf(xml), c.bodies) << c.why;
    }
}

TEST(BarChart, CylindersHaveABodyAndACap) {
    const auto painted = [](const std::string& axes, const std::string& attributes, const std::string& series) {
        std::string text;
        for (const DrawCall& call : drawingCalls(barChart(axes, "bar-shape='cylinder' " + attributes, series, kDeep)))
            if (call.verbs.find('C') != std::string::npos) text += call.fill + ' ' + call.points + "; ";
        return text;
    };
    EXPECT_EQ(painted(kUpright, "", bars(8, "5=4")),
              "linear 45,22 45,30 55,30 55,22 55,42 55,50 45,50 45,42 45,22; "
              "#040404 45,22 45,30 55,30 55,22 55,14 45,14 45,22; ");
    EXPECT_EQ(painted(kUpright, "", bars(8, "5=-4")),
              "linear 45,42 45,50 55,50 55,42 55,62 55,70 45,70 45,62 45,42; "
              "#040404 45,42 45,50 55,50 55,42 55,34 45,34 45,42; ")
        << "the cap at the base";
    EXPECT_EQ(painted(kLying, "", bars(8, "5=4")),
              "linear 148,70 140,70 140,80 148,80 108,80 100,80 100,70 108,70 148,70; "
              "#040404 148,70 140,70 140,80 148,80 156,80 156,70 148,70; ");
    EXPECT_EQ(painted(kLying, "", bars(8, "5=-4")),
              "linear 68,70 60,70 60,80 68,80 108,80 100,80 100,70 108,70 68,70; "
              "#040404 108,70 100,70 100,80 108,80 116,80 116,70 108,70; ")
        << "always the right end";
    const std::string two = bars(8, "5=4 10=-2 15=1 20=") + bars(6, "5=2 10=-3 15=-1 20=-1");
    std::string caps;
    for (const DrawCall& call : drawingCalls(barChart(kUpright, "bar-shape='cylinder' grouping='stacked'", two, kDeep)))
        if (call.verbs == "MCCZ") caps += call.fill + ' ' + call.points.substr(0, call.points.find(' ')) + "; ";
    EXPECT_EQ(caps, "#030303 45,12; #030303 195,42; #040404 95,42; #040404 145,37; ")
        << "5: the last of two positive ones; 10: the first of two negative ones; 15: the positive one; 20: the only "
           "one";
    const auto bodyOf = [](const std::string& axes) {
        for (const DrawCall& call : drawingCalls(barChart(axes, "bar-shape='cylinder'", bars(8, "5=4"), kDeep)))
            if (call.fill == "linear") return call;
        return DrawCall();
    };
    EXPECT_TRUE(bodyOf(kUpright).says(R"("x1":0,"y1":0,"x2":1,"y2":0)")) << "light from left to right";
    EXPECT_TRUE(bodyOf(kLying).says(R"("x1":0,"y1":0,"x2":0,"y2":1)")) << "light from top to bottom";
    EXPECT_TRUE(bodyOf(kUpright).says(R"({"offset":0,"color":"#040404","opacity":1},{"offset":0.5,"color":"#080808")"));
    EXPECT_EQ(bodiesOf(barChart(kUpright, "bar-shape='cylinder'", bars(1, "5=4"))), "1 45,30 10 x 20; ")
        << "flat, every shape is a rectangle";
}

TEST(BarChart, PointsHaveFillsOfTheirOwn) {
    const std::string serie =
        "<serie fill='#010101'><data-point category='5' value='2' width='10'/>"
        "<data-point category='10' value='2' width='10' fill='#020202' stroke='#090909'/>"
        "<data-point category='15' value='2' width='10'/></serie>";
    EXPECT_EQ(bodiesOf(barChart(kUpright, "", serie)), "1 45,40 10 x 10; 2 95,40 10 x 10; 1 145,40 10 x 10; ");

    EXPECT_NE(bodiesOf(barChart(kUpright, "", serie, kDeep)).find("2 91,40 101,40 101,50 91,50; "), std::string::npos)
        << "the front of a box too";
    std::string strokes;
    for (const DrawCall& call : drawingCalls(barChart(kUpright, "", serie), "rectangle"))
        if (!call.fill.empty()) strokes += call.stroke + "; ";
    EXPECT_EQ(strokes, "; #090909; ; ") << "a stroke is its point's alone";

    const auto root = load(barChart(kUpright, "", serie));
    auto& restyled = *plotOf(*root).getCharts()[0]->getSeries()[0]->getDataPoints()[2];
    give(restyled, "fill=#030303;stroke=#0a0a0a;width=20");
    const auto surface = make<RecordingSurface>();
    root->render(surface, 400, 300);
    EXPECT_NE(surface->calls.find("rectangle 140 40 20 10"), std::string::npos) << surface->calls;
}

TEST(BarChart, SecondRenderIsTheSame) {
    const std::string two = bars(1, "5=4 10=-2") + bars(2, "5=1 10=-3", "marker='circle'");
    for (const std::string& attributes :
         {std::string(), std::string("grouping='stacked'"), std::string("grouping='stacked' bar-shape='cylinder'")}) {
        for (const std::string& plot : {std::string(), kDeep}) {
            for (const std::string& series : {two, bars(1, "5=4")}) {
                const auto [first, second] = renderedTwice(*load(barChart(kUpright, attributes, series, plot)));
                EXPECT_EQ(first, second) << attributes << ' ' << plot;
            }
        }
    }
}

TEST(BarChart, ThemeColoursAreNumberedFromTheLastSeries) {
    const auto fills = [](const std::string& theme) {
        const std::string series = "<serie>" + points("5=2") + "</serie>";
        std::string text;
        const std::string plot = "<plot-area width='200' height='100' labels-position='overflow'><bar-chart>" + series +
                                 "</bar-chart><bar-chart>" + series + "</bar-chart>" + kUpright + "</plot-area>";
        for (const DrawCall& call : drawingCalls(rootWith("theme='" + theme + "'", plot), "rectangle"))
            text += call.fill + ' ' + call.stroke + "; ";
        return text;
    };
    EXPECT_EQ(fills("colored-flat"), " ;  ; #4572a7 ; #c0504d ; ") << "page and plot, then blue and red";
    EXPECT_EQ(fills("colored-white-outline"), " ;  ; #4572a7 #ffffff; #c0504d #ffffff; ");
    EXPECT_EQ(fills("colored-gradient"), " ;  ; linear ; linear ; ");
}

}  // namespace
}  // namespace VEXA::Testing
