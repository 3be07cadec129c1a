#include "vexa/engine/VexaEngine.h"

#include <gtest/gtest.h>

#include "tests/engine/EngineTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;

/// Notes the operations for documents and pages, and what it was told of the document by then.
class PageRecorder final : public RenderContext {
public:
    void beginDocument() override {
        info = documentInfo();
        operations += "beginDocument ";
    }
    void endDocument() override { operations += "endDocument"; }
    void beginPage(const SizeF& size) override {
        operations += "beginPage " + shown(size.width) + " x " + shown(size.height) + ' ';
    }
    void endPage() override { operations += "endPage "; }
    void drawLine(float, float, float, float) override {}
    void drawRectangle(float, float, float, float, float, float) override { operations += "paint "; }
    void drawEllipse(float, float, float, float) override {}
    void drawPath(SmartPtr<Path>) override {}
    void drawText(const String&, int, float, float, float, int) override {}

    std::string operations;
    DocumentInfo info;
};

std::string elementAlone(const std::string& name) {
    return "<?xml version=\"1.0\"?>\n <" + name + " xmlns=\"http://vexa-charts.org/2008/vx\"/>";
}

TEST(Engine, RefusesWhatIsNoChartDocument) {
    const struct {
        std::string document;
        const char* failure;
        const char* says;
        const char* why;
    } cases[] = {
        {"", "NullPointerException 2002 SmartPtr:118 at 0:0", "empty", "an empty stream"},
        {elementAlone("plot-area"), "UnreacheableCodeException 2001 VexaEngine:34 at 2:2",
         R"(the top element is "plot-area"; put it into a <root xmlns="http://vexa-charts.org/2008/vx">)",
         "a chart element that is no root"},
        {elementAlone("defs"), "UnreacheableCodeException 2001 VexaEngine:34 at 2:2", "\"defs\"", "not even an area"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(failureOf([&] { load(c.document); }), c.failure) << c.why;
        EXPECT_NE(messageOf([&] { load(c.document); }).find(c.says), std::string::npos) << c.why;
    }
}

TEST(Engine, ParserErrorsPassThroughWithTheirPlace) {
    const struct {
        std::string document;
        const char* place;
        const char* why;
    } cases[] = {
        {elementAlone("chart"), " at 2:2", "an unknown top element"},
        {rootWith("", "\n<title width=\"wide\"/>"), " at 2:", "a value that does not parse"},
        {rootWith("", "\n</pie>"), " at 2:", "malformed XML"},
    };
    for (const auto& c : cases) {
        const std::string failure = failureOf([&] { load(c.document); });
        EXPECT_EQ(failure.substr(0, 10), "Exception ") << c.why;
        EXPECT_NE(failure.find(c.place), std::string::npos) << c.why << ": " << failure;
    }
}

TEST(Engine, LoadsTheWholeTree) {
    const auto root = load(rootWith("", R"(<spider/><pie/><title value="T"/><plot-area/><spider id="last"/>)"));
    ASSERT_EQ(root->getBodies().size(), 4U);
    std::string names;
    for (const auto& body : root->getBodies()) names += body->getTypeInfo()->getElementName().toUtf8() + ' ';
    EXPECT_EQ(names, "spider pie plot-area spider ") << "bodies of all kinds in document order";
    EXPECT_EQ(root->getTitle()->getValue(), "T");
    EXPECT_EQ(root->getTitle()->getParent(), root.get());
}

TEST(Engine, RenderPageBracketsThePictureWithADocumentOfOnePage) {
    const struct {
        const char* attributes;
        const char* operations;
        const char* why;
    } cases[] = {
        {"", "beginDocument beginPage 800 x 600 paint endPage endDocument", "the reference size"},
        {R"(width="50%" height="50%")", "beginDocument beginPage 400 x 300 paint endPage endDocument", "percent of it"},
        {R"(width="3in" height="20")", "beginDocument beginPage 288 x 20 paint endPage endDocument", "a size in px"},
        {R"(width="400" height="300" viewBox="0 0 10 10")",
         "beginDocument beginPage 400 x 300 paint endPage endDocument", "a view box does not change the page"},
    };
    for (const auto& c : cases) {
        const auto surface = make<PageRecorder>();
        VexaEngine::renderPage(streamOf(rootWith(c.attributes, "")), surface);
        EXPECT_EQ(surface->operations, c.operations) << c.why;
    }
}

TEST(Engine, RenderLeavesDocumentAndPageToTheCaller) {
    const auto surface = make<PageRecorder>();
    VexaEngine::render(streamOf(rootWith("", "")), surface);
    EXPECT_EQ(surface->operations, "paint ");
}

TEST(Engine, AFailureLeavesThePageOpen) {
    const auto surface = make<PageRecorder>();
    EXPECT_THROW(
        VexaEngine::renderPage(streamOf(spiderWith(R"(web-stroke="none")", "<spider-axis/><spider-serie/>")), surface),
        UnreacheableCodeException);
    EXPECT_EQ(surface->operations, "beginDocument beginPage 400 x 300 paint paint ");

    const auto untouched = make<PageRecorder>();
    EXPECT_THROW(VexaEngine::renderPage(streamOf(elementAlone("pie")), untouched), UnreacheableCodeException);
    EXPECT_EQ(untouched->operations, "") << "what does not load is not begun";
}

TEST(Engine, NeedsASurface) {
    const std::string document = rootWith("", "");
    EXPECT_EQ(failureOf([&] { VexaEngine::renderPage(streamOf(document), nullptr); }),
              "NullPointerException 2002 SmartPtr:118 at 0:0");
    EXPECT_EQ(failureOf([&] { VexaEngine::render(streamOf(document), nullptr); }),
              "NullPointerException 2002 SmartPtr:118 at 0:0");
}

TEST(Engine, TellsReadersWhatTheChartIsAbout) {
    const std::string axes = R"(<spider-axis caption=" Speed "/><spider-axis/><spider-axis caption="Power"/>)";
    const std::string longName(41, 'x');
    std::string many;
    for (int i = 1; i <= 14; ++i) many += "<slice caption=\"" + std::to_string(i) + "\"/>";
    const std::string series = "<serie/><serie/>";
    const std::string cut = std::string(40, 'x') + "…";
    const struct {
        std::string content;
        std::string description;
        const char* why;
    } cases[] = {
        {"", "", "nothing to tell"},
        {"<spider>" + axes + "<spider-serie/><spider-serie/></spider>",
         "Radar chart of 2 series on 3 axes: Speed, Power.", "axes without a name are counted, not listed"},
        {"<spider><spider-axis/></spider>", "Radar chart of 0 series on 1 axis.", "no names at all"},
        {R"(<pie><slice caption="Wind"/></pie>)", "Pie chart of 1 slice: Wind.", "a single one"},
        {R"(<pie pie-shape="doughnut"/>)", "Doughnut chart of 0 slices.", "with a hole"},
        {"<pie>" + many + "</pie>", "Pie chart of 14 slices: 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, ….",
         "a long list is cut"},
        {"<pie><slice caption=\"" + longName + "\"/></pie>", "Pie chart of 1 slice: " + cut + ".", "so is a long name"},
        {"<plot-area><bar-chart>" + series + "</bar-chart></plot-area>", "Chart of 2 series as bars.", "bars"},
        {"<plot-area><bar-chart>" + series + "</bar-chart><line-chart><serie/></line-chart><bar-chart/></plot-area>",
         "Chart of 3 series as bars and lines.", "each kind once"},
        {"<plot-area><area-chart/><line-chart/><bar-chart/></plot-area>", "Chart of 0 series as areas, lines and bars.",
         "in document order"},
        {"<plot-area/>", "Chart of 0 series.", "an empty plot"},
        {"<spider/><pie/>", "Radar chart of 0 series on 0 axes. Pie chart of 0 slices.", "a sentence for each body"},
        {"<pie/><pie/><pie/><pie/><pie/>",
         "Pie chart of 0 slices. Pie chart of 0 slices. Pie chart of 0 slices. Pie chart of 0 slices.",
         "but not for a hundred"},
    };
    const CapturedLog log;
    for (const auto& c : cases) {
        const auto surface = make<PageRecorder>();
        VexaEngine::renderPage(streamOf(rootWith(R"(theme="none")", c.content)), surface);
        EXPECT_EQ(surface->info.description.toUtf8(), c.description) << c.why;
        EXPECT_EQ(surface->info.title, "") << c.why;
    }
    const auto titled = make<PageRecorder>();
    VexaEngine::renderPage(streamOf(rootWith("", R"(<title value="Cars &amp; bikes"/>)")), titled);
    EXPECT_EQ(titled->info.title, "Cars & bikes") << "before the document begins";
}

TEST(Engine, WarnsOnceOfEachElementThatIsNotPainted) {
    const CapturedLog log;
    const auto root = load(rootWith("", "\n<pie/>\n <legend/>\n  <plot-area/><pie/>"));
    for (int times = 0; times < 2; ++times) root->render(make<PageRecorder>(), 800, 600);
    std::string told;
    for (const LogRecord& record : log.records) {
        told += std::to_string(record.code) + '@' + std::to_string(record.place.line) + ':' +
                std::to_string(record.place.column) + ' ';
    }
    EXPECT_EQ(told, "34010@2:1 34010@4:3 34010@4:15 34010@3:2 ") << "bodies in document order, then the legend";
    EXPECT_NE(log.records.at(0).message.find("\"pie\""), String::npos);
}

TEST(Engine, TwoRendersGiveTheSameBytes) {
    const std::string document = spiderWith(R"(fill="#eee")", R"(<spider-axis id="a" caption="A"/><spider-axis id="b"/>
        <spider-serie fill="red"><spider-data-point axis-id="a" value="3"/></spider-serie>)");
    EXPECT_EQ(draw(document), draw(document));
}

}  // namespace
}  // namespace VEXA
