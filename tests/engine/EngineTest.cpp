#include "vexa/engine/VexaEngine.h"

#include "tests/engine/EngineTestTools.h"
#include "vexa/engine/ChartDescription.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {
namespace {

using namespace Testing;

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
        {elementAlone("defs"), refused, "\"defs\"", "not even an area"},
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
        {"", "800 600", "the reference size"},
        {"width='50%' height='50%'", "400 300", "percent of it"},
        {"width='3in' height='20'", "288 20", "a size in px"},
        {"width='400' height='300' viewBox='0 0 10 10'", "400 300", "a view box does not change the page"},
    };
    for (const auto& c : cases) {
        const auto surface = make<RecordingSurface>();
        VexaEngine::renderPage(streamOf(rootWith(c.in, "")), surface);
        EXPECT_TRUE(surface->calls.starts_with("beginDocument; beginPage " + std::string(c.out) + "; rect")) << c.why;
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
        {"<spider><spider-axis/></spider>", "Radar chart of 0 series on 1 axis.", "no names at all"},
        {"<pie pie-shape='doughnut'/>", "Doughnut chart of 0 slices.", "with a hole"},
        {"<pie>" + many + "</pie>", "Pie chart of 14 slices: 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, ….", "a long list"},
        {"<pie>" + longSlice + "</pie>", "Pie chart of 1 slice: " + cut + ".", "so is a long name"},
        {"<plot-area>" + bars + "<line-chart><serie/></line-chart><bar-chart/></plot-area>",
         "Chart of 3 series as bars and lines.", "each kind once"},
        {"<plot-area><area-chart/><line-chart/><bar-chart/></plot-area>", "Chart of 0 series as areas, lines and bars.",
         "in document order"},
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

TEST(Engine, WarnsOnceOfEachElementThatIsNotPainted) {
    const CapturedLog log;
    const auto root = load(rootWith("", "\n<pie/>\n <legend/>\n  <plot-area/><pie/>"));
    for (int times = 0; times < 2; ++times) root->render(make<NullSurface>(), 800, 600);
    EXPECT_EQ(log.told(), "34010@2:1 34010@4:3 34010@4:15 34010@3:2") << "bodies in order, then the legend";
    EXPECT_NE(log.records.at(0).message.find("\"pie\""), String::npos);
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
}  // namespace VEXA
