#include "vexa/engine/VexaEngine.h"

#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/engine/ChartDescription.h"
#include "vexa/pie/VexaPie.h"
#include "vexa/spider/VexaSpider.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

std::string elementAlone(const std::string& name) {
    return "<?xml version=\"1.0\"?>\n <" + name + " xmlns=\"http://vexa-charts.org/2008/vx\"/>";
}

TEST(Engine, RefusesWhatIsNoChartDocument) {
    const std::string refused = "UnreacheableCodeException 2001 VexaEngine:34 at 2:2";
    const std::string advice = R"("plot-area"; put it into a <root xmlns="http://vexa-charts.org/2008/vx">)";
    const struct {
        std::string document, failure, says;
        const char* why;
    } cases[] = {
        {"", kNullPointer, "empty", "an empty stream"},
        {elementAlone("plot-area"), refused, advice, "a chart element that is no root"},
        {elementAlone("chart"), " at 2:2", "chart", "an unknown top element: the parser's error with its place"},
        {rootWith("", "\n<title width=\"wide\"/>"), " at 2:", "wide", "a value that does not parse"},
        {rootWith("", "\n</pie>"), " at 2:", "", "malformed XML"},
    };
    for (const auto& c : cases) {
        const std::string failure = failureOf([&] { load(c.document); });
        EXPECT_NE(failure.find(c.failure), std::string::npos) << c.why << ": " << failure;
        EXPECT_NE(messageOf([&] { load(c.document); }).find(c.says), std::string::npos) << c.why;
    }
}

TEST(Engine, RenderPageBracketsThePictureWithADocumentOfOnePage) {
    const Case<const char*, const char*> cases[] = {
        {"", "800 600; rectangle 0 0 800 600", "the reference size"},
        {"width='3in' height='20'", "288 20; rectangle 0 0 288 20", "a size in px"},
        {"width='50%' height='50%'", "400 300; rectangle 0 0 200 150",
         "half of the reference size; the background is half of the page"},
        {"width='400' height='300' viewBox='0 0 10 10'", "400 300; rectangle 0 0 400 300",
         "a view box does not change the page"},
    };
    for (const auto& c : cases) {
        const auto surface = make<RecordingSurface>();
        VexaEngine::renderPage(streamOf(rootWith(c.in, "")), surface);
        EXPECT_TRUE(surface->calls.starts_with("beginDocument; beginPage " + std::string(c.out) + " 0 0; ")) << c.why;
        EXPECT_TRUE(surface->calls.ends_with(" 0 0; endPage; endDocument; ")) << surface->calls;
    }
    const auto surface = make<RecordingSurface>();
    VexaEngine::render(streamOf(rootWith("", "")), surface);
    EXPECT_EQ(surface->calls, "rectangle 0 0 800 600 0 0; ") << "render leaves document and page to the caller";
}

TEST(Engine, AFailureLeavesThePageOpen) {
    const auto surface = make<RecordingSurface>();
    const std::string webless = spiderWith("web-stroke='none'", "<spider-axis/><spider-serie/>");
    EXPECT_THROW(VexaEngine::renderPage(streamOf(webless), surface), UnreacheableCodeException);
    EXPECT_EQ(surface->calls,
              "beginDocument; beginPage 400 300; rectangle 0 0 400 300 0 0; rectangle 0 0 400 300 0 0; ");
    const auto untouched = make<RecordingSurface>();
    EXPECT_THROW(VexaEngine::renderPage(streamOf(elementAlone("pie")), untouched), UnreacheableCodeException);
    EXPECT_EQ(untouched->calls, "") << "what does not load is not begun";
    EXPECT_EQ(failureOf([] { VexaEngine::renderPage(streamOf(rootWith("", "")), nullptr); }), kNullPointer);
    EXPECT_EQ(failureOf([] { VexaEngine::render(streamOf(rootWith("", "")), nullptr); }), kNullPointer);
}

TEST(Engine, TellsReadersWhatTheChartIsAbout) {
    const std::string axes = R"(<spider-axis caption=" Speed "/><spider-axis/><spider-axis caption="Power"/>)";
    const std::string longSlice = "<slice caption='" + std::string(41, 'x') + "'/>";
    const std::string cut = std::string(40, 'x') + "…";
    std::string many;
    for (int i = 1; i <= 14; ++i) many += "<slice caption=\"" + std::to_string(i) + "\"/>";
    const std::string bars = "<bar-chart><serie/><serie/></bar-chart>";
    const std::string noSlices = "Pie chart of 0 slices.";
    const Case<std::string, std::string> cases[] = {
        {"", "", "nothing to tell"},
        {"<spider>" + axes + "<spider-serie/><spider-serie/></spider>",
         "Radar chart of 2 series on 3 axes: Speed, Power.", "axes without a name are counted, not listed"},
        {"<pie pie-shape='doughnut'/>", "Doughnut chart of 0 slices.", "with a hole"},
        {"<pie>" + many + "</pie>", "Pie chart of 14 slices: 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, ….", "a long list"},
        {"<pie>" + longSlice + "</pie>", "Pie chart of 1 slice: " + cut + ".", "so is a long name"},
        {"<plot-area>" + bars + "<line-chart><serie/></line-chart><area-chart/><bar-chart/></plot-area>",
         "Chart of 3 series as bars, lines and areas.", "each kind once, in document order"},
        {"<spider/><pie/>", "Radar chart of 0 series on 0 axes. " + noSlices, "a sentence for each body"},
        {"<pie/><pie/><pie/><pie/><pie/>", noSlices + ' ' + noSlices + ' ' + noSlices + ' ' + noSlices,
         "but not for a hundred"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(describeChart(*load(rootWith("", c.in))).description.toUtf8(), c.out) << c.why;

    const auto surface = make<RecordingSurface>();
    VexaEngine::renderPage(streamOf(rootWith("",
                                             "<title value='Cars &amp; bikes' stroke='red'/><spider>"
                                             "<spider-axis id='a' caption='A' stroke='red'/><spider-serie/></spider>")),
                           surface);
    EXPECT_EQ(surface->info.title, "Cars & bikes") << "before the document begins";
    EXPECT_EQ(surface->info.description, "Radar chart of 1 series on 1 axis: A.");
}

TEST(EngineInheritance, NearestAncestorThatCarriesTheAttributeDecides) {
    const struct {
        std::string root, plot, chart, serie, point;
        const char *attribute, *value, *why;
    } cases[] = {
        {"", "", "", "fill='#010203'", "", "fill", "#010203", "from the series"},
        {"fill='#040506'", "fill='#010203'", "", "", "", "fill", "", "an area's fill is its own and is not handed on"},
        {"", "fill='red'", "fill='#010203'", "", "", "fill", "#010203",
         "a container that does not know it hands it on"},
        {"font-size='20'", "", "", "", "", "font-size", "20", "from the root through everything"},
        {"font-size='20'", "", "", "font-size='12px'", "", "font-size", "12", "a default that is given stops it"},
        {"", "", "fill-opacity='0.5'", "fill-opacity='1'", "", "fill-opacity", "1", "and is handed on itself"},
        {"", "width='50%'", "", "", "", "width", "20", "a width is no attribute to hand on"},
    };
    for (const auto& c : cases) {
        const auto root =
            load(rootWith(c.root, "<plot-area " + c.plot + "><line-chart " + c.chart + "><serie " + c.serie +
                                      "><data-point " + c.point + "/></serie></line-chart></plot-area>"));
        const auto& chart = *static_cast<VexaPlotArea&>(*root->getBodies()[0]).getCharts()[0];
        const auto& point = chart.getSeries()[0]->getDataPoints()[0];
        EXPECT_EQ(attributeOf(*point, c.attribute), c.value) << c.why;
    }
    const auto root = load(rootWith("",
                                    "<pie caption-placement='center'><slice/></pie>"
                                    "<spider min='5'><spider-axis/></spider>"));
    EXPECT_EQ(attributeOf(*static_cast<VexaPie&>(*root->getBodies()[0]).getSlices()[0], "caption-placement"), "center");
    EXPECT_EQ(attributeOf(*static_cast<VexaSpider&>(*root->getBodies()[1]).getAxes()[0], "min"), "-2147483648")
        << "bounds of a spoke stand alone";
    const auto plot = load(rootWith("min='5' padding='7'",
                                    "<plot-area><value-axis caption-offset='9'><display-values/></value-axis>"
                                    "<category-axis/></plot-area><legend/>"));
    auto& axis = static_cast<VexaPlotArea&>(*plot->getBodies()[0]).getAxis(false);
    EXPECT_EQ(attributeOf(axis, "min"), "5");
    EXPECT_EQ(attributeOf(*axis.getDisplayValues(), "min"), "5");
    EXPECT_EQ(attributeOf(*axis.getDisplayValues(), "caption-offset"), "9");
    EXPECT_EQ(attributeOf(*axis.getDisplayValues(), "offset"), "4") << "another attribute";
    EXPECT_EQ(attributeOf(*plot->getLegend(), "padding"), "7");
}

TEST(EngineInheritance, TitleHasTheRootsFont) {
    const WithFonts fonts;
    const auto text = [](const std::string& root, const std::string& title) {
        return drawingCalls(rootWith(root, "<title value='T' " + title + "/>"), "text").at(0);
    };
    const std::string style = "font-size='20' font-weight='bold' font-style='italic' font-family='serif'";
    EXPECT_TRUE(text(style, "").says(R"("font":{"family":"serif","size":20,"weight":"bold","style":"italic"})"));
    EXPECT_EQ(text(style, "").origin, "0,20") << "and is laid out in it";
    EXPECT_TRUE(text(style, "font-size='12'").says(R"("size":12,"weight":"bold")")) << "each attribute for itself";
    EXPECT_EQ(text("caption-color='red'", "").fill, "#000000") << "a title's text has a colour of its own";
}

std::size_t warningsOf(std::size_t count, const std::string& unknownElement) {
    std::string content = "<spider-axis id='a'/>";
    for (std::size_t i = 0; i < count; ++i) content += "<spider-serie fill='url(#none)'/>" + unknownElement;
    const CapturedLog log;
    draw(spiderWith("", content));
    EXPECT_EQ(log.records.back().code == 3014, log.records.size() > Limits::kWarnings) << "ends with a notice";
    return log.records.size();
}

TEST(Limits, WarningsOfADocument) {
    EXPECT_EQ(warningsOf(Limits::kWarnings, ""), Limits::kWarnings);
    EXPECT_EQ(warningsOf(Limits::kWarnings + 50, ""), Limits::kWarnings + 1) << "those of painting";
    EXPECT_EQ(warningsOf(60, "<zz/>"), Limits::kWarnings + 1) << "those of reading and of painting together";
    EXPECT_EQ(warningsOf(3, ""), 3U) << "the next document starts anew";
}

}  // namespace
}  // namespace VEXA::Testing
