#include "tests/engine/PlotTestTools.h"

namespace VEXA::Testing {
namespace {

const std::string kAxes = "<category-axis/><value-axis/>";
const std::string kData = lineChart("A=10 B=37");

/// One word for each call, "line#0000cc ", of a document's plot; the root's background is left out.
std::string orderOf(const std::string& xml) {
    std::string order;
    for (const DrawCall& call : drawingCalls(xml)) order += call.op + call.fill + call.stroke + ' ';
    return order.substr(order.find(' ') + 1);
}

TEST(PlotArea, PaintsFromTheBackToTheFront) {
    const std::string parts = "<grid-lines stroke='#000001'/><tick-marks stroke='#000002'/><display-values/>";
    const std::string axes = "<category-axis stroke='#0000c0' caption='C' caption-color='#0000cc' data-type='date'>" +
                             parts +
                             "</category-axis><value-axis stroke='#a00000' unit='50' caption='V' "
                             "caption-color='#aa0000'>" +
                             parts + "</value-axis>";
    const std::string data = lineChart("2024-01-01=10");
    EXPECT_EQ(orderOf(fixedPlot("fill='#eeeeee' stroke='#dddddd'", axes + data)),
              "rectangle#eeeeee#dddddd "
              "line#000001 line#000001 line#000001 path "  // grids: 0, 50; one day; the series
              "line#000002 line#000002 line#a00000 text#aa0000 text#aa0000 text#aa0000 "  // values, then categories
              "line#000002 line#0000c0 text#0000cc text#0000cc ")
        << "background, grids, charts, the value axis with ticks, line, labels and caption, then the category axis";
}

TEST(PlotArea, ASceneHasWallsAndAFloor) {
    const std::string attributes = "x='30' y='50' fill='#cccccc' stroke='#dddddd' aspect-3d-scene-depth='20' ";
    const auto flat = drawingCalls(fixedPlot(attributes, kAxes), "rectangle");
    EXPECT_EQ(flat.at(1).box + ' ' + onPage(flat[1]) + flat[1].fill + flat[1].stroke,
              "30,50 200 x 100 30,50#cccccc#dddddd");

    const std::string deep = fixedPlot(attributes + "aspect-3d-view='true' aspect-3d-shading='0.5'", kAxes);
    const auto walls = drawingCalls(deep, "path");
    ASSERT_EQ(walls.size(), 2U);
    EXPECT_EQ(onPage(walls[0]), "50,30 50,130 30,150 30,50") << "the left wall, from the back to the front";
    EXPECT_EQ(onPage(walls[1]), "50,130 250,130 230,150 30,150") << "the floor";
    for (const DrawCall& wall : walls) EXPECT_EQ(wall.verbs + wall.fill + wall.stroke, "MLLLZ#666666#dddddd");
    const auto back = drawingCalls(deep, "rectangle").at(1);
    EXPECT_EQ(onPage(back) + back.fill, "50,30#cccccc") << "the back wall, in full colour";
    EXPECT_LT(draw(deep).find("\"path\""), draw(deep).find("#cccccc")) << "drawn after the other two";
}

TEST(PlotArea, TicksTakeTheRoomOfTheirStyle) {
    const auto plotRect = [](const std::string& axis) {
        return drawingCalls(plotWith("width='200' height='100'", lineChart("A=93") +
                                                                     "<category-axis/><value-axis unit='50' "
                                                                     "intersection='at-minimum'>" +
                                                                     axis + "</value-axis>"),
                            "rectangle")
            .at(1)
            .box;
    };
    const auto ticks = [](const std::string& style) {
        return "<tick-marks stroke-width='2' tick-mark-length='6' tick-mark-style='" + style + "'/>";
    };
    EXPECT_EQ(plotRect(ticks("none")), "0,0 200 x 100");
    EXPECT_EQ(plotRect(ticks("inside")), "2,0 198 x 100") << "as wide as they are drawn";
    EXPECT_EQ(plotRect(ticks("cross")), "5,0 195 x 100");
    EXPECT_EQ(plotRect(ticks("outside")), "8,0 192 x 100");
    EXPECT_EQ(plotRect("<display-values draw-values='false' offset='9'/>"), "0,0 200 x 100") << "nor labels left out";
}

TEST(PlotArea, BarsAreAsHighWithoutGridLines) {
    for (const char* const grid : {"", "<grid-lines/>"}) {
        const auto bars =
            drawingCalls(fixedPlot("", "<bar-chart grouping='stacked'><serie fill='#010101'>" + points("A=30") +
                                           "</serie></bar-chart>" + lineChart("A=40 B=10") +
                                           "<category-axis/><value-axis unit='50'>" + grid + "</value-axis>"),
                         "rectangle");
        EXPECT_NE(bars.back().box.find(" x 30"), std::string::npos)
            << "30 of 100, since a stack is 70: " << bars.back().box;
    }
}

TEST(PlotArea, LayoutMeasuresFirstAndComputesTheValuesAgain) {
    const WithFonts fonts;
    // In the full 90 px of height 9 labels fit: the step for 37 -> 40 is 5. The labels "0" … "40" are then up to 12 px
    // wide; those of the categories are 10 px high, both 4 px away. So the plot is 200 - 16 - 3 wide (half of "B"
    // sticks out on the right) and 90 - 14 - 5 high (half of "40" sticks out at the top): 7 labels fit, the step
    // becomes 10.
    const std::string labels = "<display-values/>";
    const std::string chart =
        kData + "<category-axis>" + labels + "</category-axis><value-axis stroke='#a00000'>" + labels + "</value-axis>";
    const std::string size = "x='10' y='20' width='200' height='90'";
    EXPECT_EQ(textsOf(plotWith(size, chart)),
              "0 16,101; 10 10,83.25; 20 10,65.5; 30 10,47.75; 40 10,30; A 23,110; B 204,110; ");
    EXPECT_EQ(linesOf(plotWith(size, chart), "#a00000"), "26,25 26,96; ") << "90 - 14 - 5 px from y = 25 on";
    const auto root = load(plotWith(size, chart));
    const auto [first, second] = renderedTwice(*root);
    EXPECT_NE(first.find("line 0 0 0 71; "), std::string::npos);
    EXPECT_EQ(first, second) << "a second render lays out no more";
    EXPECT_EQ(plotOf(*root).getOuterRect(), (RectF{10, 20, 200, 90}));
}

TEST(PlotArea, LabelsFollowTheLayoutAlsoWhereNothingElseAsksForTheScale) {
    const WithFonts fonts;
    // The sizes of the test above; no chart, tick or grid line, and no axis crosses at a value.
    const std::string at = " intersection='at-minimum'><display-values/>";
    EXPECT_EQ(textsOf(plotWith("x='10' y='20' width='200' height='90'",
                               "<category-axis" + at + "</category-axis><value-axis max='40'" + at + "</value-axis>")),
              "0 16,101; 10 10,83.25; 20 10,65.5; 30 10,47.75; 40 10,30; 0 23,110; ");
}

TEST(PlotArea, ARangeThatWasMovedOntoItsStepsStaysThere) {
    const WithFonts fonts;
    // 41 -> 45. In 45 px 4 labels fit: a step of 20, and 0 … 60. The caption takes 10 + 4 + 2 px and half a label 5 px:
    // in the 24 px that are left 2 labels fit, the step is 50 and the range 0 … 100. From 45 on it would be 0 … 50.
    const std::string chart =
        lineChart("A=41") + "<category-axis caption='C'/><value-axis><display-values/></value-axis>";
    EXPECT_EQ(textsOf(plotWith("width='200' height='45'", chart)), "0 6,34; 50 0,22; 100 -6,10; C 105,43; ");
}

TEST(PlotArea, ThemeColoursItsPartsAndPoints) {
    const std::string grid = "<grid-lines/><tick-marks/>";
    const std::string xml = rootWith("theme='blue-dark-outline'", "<plot-area width='200' height='100'>" +
                                                                      lineChart("A=1") + "<category-axis>" + grid +
                                                                      "</category-axis><value-axis/></plot-area>");
    const auto root = load(xml);
    root->render(make<NullSurface>(), 800, 600);
    const auto& point = plotOf(*root).getCharts()[0]->getSeries()[0]->getDataPoints()[0];
    EXPECT_EQ(describe(point->getFillBrush(ColorAspect::Normal, 0.5F)), "#4572a7/1");
    EXPECT_EQ(describe(point->getStrokeBrush(ColorAspect::Normal, 0.5F)), "1 #345b89/1");
    EXPECT_EQ(drawingCalls(xml, "rectangle").at(1).fill, "#e9edf4") << "the plot's own colour";
    EXPECT_NE(linesOf(xml, "#868686"), "");
    EXPECT_EQ(linesOf(xml, ""), "") << "axes, ticks and grid lines alike";
}

TEST(PlotArea, WithoutAnAxisNothingIsDrawn) {
    const struct {
        const char *axes, *named, *why;
    } cases[] = {
        {"<category-axis/>", "no \"value-axis\", ", "one"},
        {"<value-axis/>", "no \"category-axis\", ", "the other"},
        {"", "no \"value-axis\" and no \"category-axis\"", "both"},
    };
    for (const auto& c : cases) {
        const CapturedLog log;
        const std::string body = "\n <plot-area fill='red'>" + kData + c.axes + "</plot-area>";
        EXPECT_EQ(drawingCalls(rootWith("theme='none'", body)).size(), 1U) << "the root's background, " << c.why;
        EXPECT_EQ(log.told(), "34065@2:2");
        EXPECT_NE(log.records.at(0).message.find(c.named), String::npos) << c.why;
        EXPECT_EQ(failureOf([&] { draw(rootWith("", body)); }), "NullPointerException 34065 SmartPtr:118 at 2:2")
            << "a theme has strokes for both axes";
        EXPECT_EQ(drawingCalls(rootWith("", "<spider/>" + body)).size(), 2U) << "only the first body takes them";
    }
    const auto root = load(plotWith("", kData + "<category-axis/>"));
    EXPECT_EQ(plotOf(*root).getOtherAxis(true), nullptr);
    EXPECT_EQ(failureOf([&] { plotOf(*root).getDataKind(false); }), kNullPointer);
    EXPECT_EQ(failureOf([] { make<VexaCategoryAxis>()->getRange(); }), kNullPointer) << "an axis of no plot";
}

TEST(PlotArea, WithoutRoomNothingIsDrawn) {
    const CapturedLog log;
    const std::string tall = "<category-axis caption='C' font-size='60'/><value-axis/>";
    EXPECT_EQ(drawingCalls(plotWith("width='100' height='50' fill='red'", kData + tall)).size(), 1U);
    EXPECT_EQ(
        drawingCalls(plotWith("width='0' height='50' fill='red' labels-position='overflow'", kData + kAxes)).size(),
        1U);
    EXPECT_EQ(log.codes(), "34069 34069");
}

TEST(PlotArea, UnitsThatNoAxisCanHaveAreRefused) {
    const auto failure = [](const std::string& category, const std::string& value, const std::string& data) {
        return messageOf([&] {
            draw(fixedPlot("", "<category-axis " + category + "/><value-axis " + value + "/>" + lineChart(data)));
        });
    };
    EXPECT_NE(failure("", "unit='0'", "A=1").find(R"(the unit "0" of the "value-axis")"), std::string::npos);
    EXPECT_NE(failure("unit='-5'", "", "1=1").find(R"(the unit "-5" of the "category-axis")"), std::string::npos);
    EXPECT_EQ(failure("", "", "A=0 B=0"), "") << "a computed step of 0 is one value";
}

TEST(PlotArea, TellsTheBodiesOfSeriesWhereThingsLie) {
    const WithFonts fonts;
    const auto xml = [](const std::string& orientation) {
        return fixedPlot("x='30'", "<category-axis/><value-axis unit='10' orientation='" + orientation + "'/>" +
                                       lineChart("A=-10 B=29 C=5"));
    };
    const auto upright = load(xml("vertical"));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    VexaPlotArea& plot = plotOf(*upright);
    EXPECT_EQ(plot.getCategoryPosition(context, Value(String("B"))), 100);
    EXPECT_TRUE(plot.isVerticalValueAxis());
    EXPECT_EQ(plot.getValuePosition(context, Value(5.0)), 50) << "-20 … 30";
    EXPECT_EQ(plot.getOriginPosition(context), 60);
    EXPECT_EQ(plot.getPlotRect(context), (RectF{0, 0, 200, 100}));
    EXPECT_EQ(plot.getMaxLabelCount(context, true), 33) << "of 6 px each";
    EXPECT_EQ(plot.getMaxLabelCount(context, false), 10);
    const auto lying = load(xml("horizontal"));
    EXPECT_EQ(plotOf(*lying).getCategoryPosition(context, Value(String("B"))), 50);
    EXPECT_EQ(plotOf(*lying).getValuePosition(context, Value(5.0)), 100);
    EXPECT_EQ(plotOf(*lying).getOriginPosition(context), 80);
    EXPECT_FALSE(plotOf(*lying).isVerticalValueAxis());
    EXPECT_TRUE(make<VexaPlotArea>()->isVerticalValueAxis()) << "without axes";
    EXPECT_EQ(plot.getAxis(false).getRelativePosition(Value(5.0)), 0.5F);
    EXPECT_EQ(plot.getAxis(true).getRelativePosition(Value(String("B"))), 0.5F);
    EXPECT_EQ(plot.getAxis(true).getSlotWidth(context, 200), 50);
}

}  // namespace

TEST(Limits, AxisValues) {
    const CapturedLog log;
    const auto drawn = [](const std::string& category, const std::string& value, const std::string& data) {
        return messageOf([&] {
            draw(fixedPlot("", "<category-axis " + category + "/><value-axis " + value + "/>" + lineChart(data)));
        });
    };
    EXPECT_EQ(drawn("", "unit='1' min='1' max='100000'", "A=1"), "") << "exactly as many";
    EXPECT_NE(drawn("", "unit='1' min='0' max='100000'", "A=1").find("\"1\" of the \"value-axis\" asks for 100001"),
              std::string::npos);
    EXPECT_NE(drawn("unit='days'", "", "0001-01-01=1 9999-12-31=1").find("\"days\""), std::string::npos);
    EXPECT_EQ(drawn("unit='months'", "", "1900-01-01=1 9999-12-31=1"), "") << "97,200 months";
    EXPECT_EQ(log.codes(), "34067 34067") << "an exception is logged";

    const std::string tiny = "font-size='0.0001'";  // a million labels fit in 100 px
    const auto root = load(fixedPlot("", "<category-axis/><value-axis max='100000' " + tiny + "/>" + lineChart("A=1")));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    const Vector<Value>& values = plotOf(*root).getAxisValues(context, false);
    ASSERT_EQ(values.size(), 2U) << "an automatic step keeps both ends";
    EXPECT_EQ(values[1].getFloat(), 100000);
    EXPECT_EQ(log.records.back().code, 34068);
}

TEST(Limits, PictureAxisValues) {
    const CapturedLog log;
    const std::string plot =
        "<plot-area labels-position='overflow'><category-axis/><value-axis unit='1' min='1' "
        "max='100000'/></plot-area>";
    std::string plots;
    for (int i = 0; i < 9; ++i) plots += plot;
    const auto root = load(rootWith("theme='none'", plots));
    root->render(make<NullSurface>(), 400, 300);
    EXPECT_EQ(log.codes(), "34075 34075") << "7 plots of 400,000 corners leave too few for another";
}

TEST(Limits, LabelTexts) {
    struct TextCounter final : RecordingSurface {
        void drawText(const String&, int, float, float, float, int) override { ++texts; }
        int texts = 0;
    };
    const CapturedLog log;
    const std::string format = std::string(900, 'x') + "000000";
    const auto root = load(fixedPlot("",
                                     "<category-axis/><value-axis unit='1' min='1' max='100000'><display-values "
                                     "adjust-values='false' format='" +
                                         format + "'/></value-axis>"));
    const auto surface = make<TextCounter>();
    root->render(surface, 400, 300);
    EXPECT_EQ(log.codes(), "34076");
    EXPECT_EQ(surface->texts, 2'600'000 / 453)
        << "906 characters take 453 corners, the values 4 each of three millions";
}

}  // namespace VEXA::Testing
