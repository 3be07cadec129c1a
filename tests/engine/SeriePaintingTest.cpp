#include "tests/engine/PlotTestTools.h"

namespace VEXA::Testing {
namespace {

const std::string kDeep = "aspect-3d-view='true' aspect-3d-chart-depth='8' aspect-3d-shading='0.5'";

std::string serie(const std::string& data, const std::string& attributes = "fill='#080808'") {
    return "<serie " + attributes + ">" + points(data) + "</serie>";
}

/// On 200 px by 100 px: upright a category is 10 px and a value 5 px, lying a category is 5 px and a value 10 px.
std::string chart(const std::string& kind, const std::string& series, const std::string& axes = kUpright,
                  const std::string& plot = "", const std::string& attributes = "") {
    return fixedPlot(plot, '<' + kind + "-chart " + attributes + ">" + series + "</" + kind + "-chart>" + axes);
}

/// "fill stroke points; " of every path; those of the walls have no paint and are left out.
std::string pathsOf(const std::string& xml) {
    std::string text;
    for (const DrawCall& call : drawingCalls(xml, "path")) {
        if (call.clips.size() > 1) text += call.fill + ' ' + call.stroke + ' ' + call.points + "; ";
    }
    return text;
}

TEST(LineChart, IsAPolylineThroughTheValues) {
    const std::string style = "fill='#080808' stroke='#090909'";
    EXPECT_EQ(pathsOf(chart("line", serie("0=0 10=4 20=-4", style))), " #090909 0,50 100,30 200,70; ") << "not filled";
    EXPECT_EQ(pathsOf(chart("line", serie("0=0 10=4 20=-4", style), kLying)), " #090909 100,100 140,50 60,0; ");
    EXPECT_EQ(pathsOf(chart("line", serie("20=2 0=0 10=4", style))), " #090909 200,40 0,50 100,30; ")
        << "in the order of the document";
    EXPECT_EQ(pathsOf(chart("line", serie("0=2 10= 20=4", style))), " #090909 0,40 200,30; ")
        << "bridges what is missing";
    EXPECT_EQ(pathsOf(chart("line", serie("10=2", style))), " #090909 100,40 100,40; ") << "a dot";
    EXPECT_EQ(pathsOf(chart("line", serie("", style) + serie("10=", style))), "") << "nothing without values";
}

TEST(LineChart, RisesAsARibbonInThe3DView) {
    EXPECT_EQ(pathsOf(chart("line", serie("0=0 10=4 20=-4", "fill='#080808' stroke='#090909'"), kUpright, kDeep)),
              "#040404 #090909 0,50 100,30 108,22 8,42; #040404 #090909 100,30 200,70 208,62 108,22; "
              " #090909 0,50 100,30 200,70; ");
    EXPECT_EQ(pathsOf(chart("line", serie("10=4"), kUpright, kDeep)), "  100,30 100,30; ") << "no ribbon of one point";
}

TEST(LineChart, WithoutStrokeTakesTheThemesLine) {
    const auto strokeOf = [](const std::string& theme, const std::string& attributes, const std::string& plot = "") {
        const std::string content = "<plot-area width='200' height='100' labels-position='overflow' " + plot +
                                    "><line-chart>" + serie("0=1 20=2", attributes) + "</line-chart>" + kUpright +
                                    "</plot-area>";
        const std::string json = drawingCalls(rootWith("theme='" + theme + "'", content), "path").back().json;
        const std::size_t at = json.find(R"("stroke":)");
        return at == std::string::npos ? "none" : json.substr(at + 9, json.size() - at - 10);
    };
    const std::string blue = R"({"brush":{"type":"solid","color":"#4572a7","opacity":1},"width":)";
    const std::string rest = R"(,"cap":"round","join":"miter","miterlimit":2})";
    EXPECT_EQ(strokeOf("colored-flat", ""), blue + "4" + rest);
    EXPECT_EQ(strokeOf("colored-dark-outline", ""), blue + "6.66" + rest) << "not the outline of its other bodies";
    EXPECT_EQ(strokeOf("colored-flat", "stroke='none'"), blue + "4" + rest) << "none is no stroke of its own";
    EXPECT_EQ(strokeOf("colored-flat", "stroke='#090909'"),
              R"({"brush":{"type":"solid","color":"#090909","opacity":1},"width":1,"cap":"butt","join":"miter",)"
              R"("miterlimit":2})");
    EXPECT_EQ(strokeOf("none", ""), "none");
    EXPECT_EQ(strokeOf("colored-flat", "", kDeep), "none") << "in the 3-D view only the outline counts";
}

TEST(LineChart, StackedPaintsTheLastSeriesFirst) {
    const std::string two = serie("0=1 20=1", "stroke='#010101'") + serie("0=2 20=2", "stroke='#020202'");
    EXPECT_EQ(pathsOf(chart("line", two)), " #010101 0,45 200,45;  #020202 0,40 200,40; ");
    EXPECT_EQ(pathsOf(chart("line", two, kUpright, "", "grouping='stacked'")),
              " #020202 0,40 200,40;  #010101 0,45 200,45; ")
        << "the values stay where they are";
}

TEST(AreaChart, IsAPolygonOnTheOrigin) {
    EXPECT_EQ(pathsOf(chart("area", serie("0=2 10=4 20=-4"))), "#080808  0,50 0,40 100,30 200,70 200,50; ");
    EXPECT_EQ(pathsOf(chart("area", serie("0=2 20=4"), kLying)), "#080808  100,100 120,100 140,0 100,0; ");
    EXPECT_EQ(pathsOf(chart("area", serie("0= 5=2 10= 15=4 20="))), "#080808  50,50 50,40 150,30 150,50; ")
        << "from the first value to the last";
    EXPECT_EQ(pathsOf(chart("area", serie("10=2"))), "#080808  100,50 100,40 100,50; ");
    EXPECT_EQ(pathsOf(chart("area", serie("10="))), "");
    EXPECT_EQ(pathsOf(chart("area", serie("0=2 10=4 20=-4", "fill='#080808' stroke='#090909'"), kUpright, kDeep)),
              "#040404 #090909 0,50 0,40 8,32 8,42; #040404 #090909 200,50 200,70 208,62 208,42; "
              "#040404 #090909 0,50 200,50 208,42 8,42; "
              "#040404 #090909 0,40 100,30 108,22 8,32; #040404 #090909 100,30 200,70 208,62 108,22; "
              "#080808 #090909 0,50 0,40 100,30 200,70 200,50; ")
        << "left end, right end, floor, top, front";
}

TEST(Serie, OfAnUnknownChartIsRefused) {
    struct OddChart final : VexaContainerObject {
        explicit OddChart(ContainerKind kind) noexcept : VexaContainerObject(kind) {}
    };
    const auto root = load("<root xmlns='http://vexa-charts.org/2008/vx'><plot-area>" + kUpright +
                           "<line-chart>\n<serie fill='#080808'>" + points("0=1 20=2") +
                           "</serie><serie/></line-chart></plot-area></root>");
    const auto render = [&](ContainerKind kind, std::size_t index) {
        const auto odd = make<OddChart>(kind);
        odd->setParent(&plotOf(*root));
        VexaSerie& serie = *plotOf(*root).getCharts()[0]->getSeries()[index];
        serie.setParent(odd.get());
        const auto surface = make<RecordingSurface>();
        VexaRenderContext context(surface, 400, 300);
        return failureOf([&] { serie.render(context); }) + surface->calls;
    };
    EXPECT_EQ(render(static_cast<ContainerKind>(7), 0), "UnreacheableCodeException 2001 VexaSerie:40 at 2:1");
    EXPECT_EQ(render(static_cast<ContainerKind>(7), 1), "") << "nobody asks what a series without points is";
    EXPECT_EQ(render(ContainerKind::None, 0), "");
}

TEST(Serie, WithoutPointsNeedsNoAxes) {
    const auto root = load(rootWith("theme='none'", "<plot-area><line-chart><serie/></line-chart></plot-area>"));
    const auto surface = make<RecordingSurface>();
    VexaRenderContext context(surface, 400, 300);
    VexaSerie& serie = *plotOf(*root).getCharts()[0]->getSeries()[0];
    EXPECT_EQ(failureOf([&] { serie.render(context); }) + surface->calls, "");
}

TEST(Serie, KeepsTheFirstPointOfEachCategoryInAnyOrder) {
    const CapturedLog log;
    const std::string dates = "2024-01-01=1 2024-01-02=2 2024-02-01=3";
    const struct {
        std::string axis, data;
        const char *kept, *why;
    } cases[] = {
        {"", "1=1 2=2 3=3", "1 2 3 ", "rising"},
        {"", "1=1 2=2 3=3 3=4", "1 2 3 ", "repeated at the end of a rise"},
        {"", "1=1 1=2 2=3 2=4", "1 3 ", "never falling"},
        {"", "1=1 2=2 3=3 2=4 1=5 4=6", "1 2 3 6 ", "repeated after a rise"},
        {"", "-0=1 0=2 1=3", "1 3 ", "a zero has no sign"},
        {"", "=1 1=2 2=3", "2 3 ", "the first one nameless"},
        {"", "1=1 =2 2=3", "1 3 ", "one in the middle nameless"},
        {"", "=1", "", "nothing else"},
        {"", dates, "1 2 3 ", "rising dates"},
        {"", dates + " 2024-01-02=4", "1 2 3 ", "dates, one repeated"},
        {"", "B=1 C=2 B=3", "1 2 ", "names in the order of the alphabet"},
        {"data-type='number'", "1=1 2024-01-01=2 2=3 1=4", "1 2 3 ", "a date in a rise of numbers"},
        {"data-type='text'", "1=1 1.0000001=2 2=3", "1 3 ", "rising numbers that look equal as texts"},
    };
    for (const auto& c : cases) {
        const auto root = load(chart("line", serie(c.data), "<category-axis " + c.axis + "/><value-axis/>"));
        VexaSerie& line = *plotOf(*root).getCharts()[0]->getSeries()[0];
        line.prepareDataPoints();
        std::string kept;
        for (const auto& point : line.getDataPoints()) kept += point->getValue().getValue().toUtf8() + ' ';
        EXPECT_EQ(kept, c.kept) << c.why;
    }
}

TEST(Serie, FindsThePointAtACoordinate) {
    const auto root = load(chart("line", serie("0=4 10=2 15=4")));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    VexaSerie& line = *plotOf(*root).getCharts()[0]->getSeries()[0];
    EXPECT_EQ(line.findDataPoint(context, Value(10.0), true), line.getDataPoints()[1].get());
    EXPECT_EQ(line.findDataPoint(context, Value(15.0000001), true), line.getDataPoints()[2].get()) << "1e-6 px off";
    EXPECT_EQ(line.findDataPoint(context, Value(15.0001), true), nullptr) << "0.001 px off";
    EXPECT_EQ(line.findDataPoint(context, Value(4.0), false), line.getDataPoints()[0].get()) << "the first of two";
    EXPECT_EQ(line.findDataPoint(context, Value(5.0), false), nullptr);
}

TEST(Serie, PaintsAloneAsInItsChart) {
    const auto root = load(chart("bar", serie("5=2") + serie("5=4 10=1"), kUpright, "", "grouping='clustered'"));
    VexaSerie& second = *plotOf(*root).getCharts()[0]->getSeries()[1];
    const auto surface = make<RecordingSurface>();
    VexaRenderContext context(surface, 400, 300);
    second.render(context);
    EXPECT_EQ(surface->calls, "rectangle 50 30 20 20 0 0; rectangle 90 45 20 5 0 0; ");
    second.getDataPoints()[0]->render(context);
    EXPECT_TRUE(surface->calls.ends_with("0; rectangle 50 30 20 20 0 0; ")) << surface->calls;

    const auto single = load(chart("bar", serie("5=2"), kUpright, kDeep, "grouping='stacked'"));
    surface->calls.clear();
    plotOf(*single).getCharts()[0]->getSeries()[0]->render(context);
    EXPECT_EQ(surface->calls, "path 4; path 4; path 4; path 4; ") << "a box that is no stack has four faces";
}

}  // namespace
}  // namespace VEXA::Testing
