#include "cli/RenderCommand.h"

#include <algorithm>
#include <new>
#include <tuple>

#include "tests/cli/CliTestTools.h"
#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Log.h"

namespace VEXA::Cli {
namespace {

constexpr int kFreeText = 2001;  // message whose text is its argument

/// Stands for the engine: the text of a document says what happens to it.
void paintByText(SmartPtr<IO::Stream> stream, SmartPtr<RenderContext> surface) {
    std::string text;
    char buffer[7];
    while (const std::size_t count = stream->read(buffer, sizeof buffer)) text.append(buffer, count);
    if (text.find("nothing") != std::string::npos || text.empty()) SmartPtr<Object>()->AddRef();
    if (text == "warns") Log::warning(kFreeText, {String("odd")}, {3, 4});
    surface->beginDocument();
    surface->beginPage({10, 10});
    if (text == "broken") {
        Log::warning(kFreeText, {String("first")}, {1, 2});
        raise(UnreacheableCodeException("bad value"), "Length", 1, {5, 6});
    }
    if (text == "no root") raise(UnreacheableCodeException("the top element is not root"), "VexaEngine", 34);
    if (text == "placeless") raise(UnreacheableCodeException("somewhere"), "VexaTheme", 34);
    if (text == "huge") throw std::bad_alloc();
    surface->endPage();
    surface->endDocument();
}

struct Outcome {
    ExitStatus status;
    std::string messages;
};

Outcome run(const RenderOptions& options) {
    RecordingConsole console;
    return {render(options, paintByText, console), console.text()};
}

TEST(RenderCommand, TellsWhatFailsInOneLineWithItsPlaceAndLeavesNoFile) {
    const std::string empty =
        ":1:1: error: the document is empty; a chart document starts with <root "
        "xmlns=\"http://vexa-charts.org/2008/vx\">\n";
    const std::string missing =
        ": error: a mandatory object is missing: the document is empty, or an element lacks a child that it needs; "
        "add it\n";
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"broken", ":1:2: warning: first\n@:5:6: error: bad value\n", "warnings before it are told, the error once"},
        {"", empty, "plain words"},
        {"\n<!-- <nothing/> -->\n<?i <nothing/>?>", empty, "tags in comments and instructions are no elements"},
        {"<!----><nothing/>", missing, "an object is missing where there are elements"},
        {"no root", ":1:1: error: the top element is not root\n", "the document as a whole is wrong"},
        {"placeless", ": error: somewhere\n", "no place is better than a wrong one"},
        {"huge", ": error: there is not enough memory\n", "what others throw is told too"},
    };
    for (const auto& [document, line, why] : cases) {
        const TestDirectory directory;
        const std::string chart = directory.write("chart.xml", document);
        const std::string picture = directory.write("chart.json", "yesterday");
        std::string expected = "@" + line;
        for (std::size_t at; (at = expected.find('@')) != std::string::npos;) expected.replace(at, 1, chart);
        const Outcome outcome = run({{chart}, directory.path("chart.svg"), "", "", 0});
        EXPECT_EQ(outcome.status, kFailed) << why;
        EXPECT_EQ(outcome.messages, expected) << why;
        EXPECT_EQ(directory.entryCount(), 2U) << why;
        EXPECT_EQ(run({{chart}, picture, "", "", 0}).status, kFailed);
        EXPECT_EQ(directory.read("chart.json"), "yesterday") << why;
    }
}

TEST(RenderCommand, DrawsTheOthersWhenOneFailsAndKeepsTheMessagesInOrder) {
    const TestDirectory directory;
    RenderOptions options{{}, "", directory.path("out/deep"), "json", 4};
    std::string expected;
    for (int i = 0; i < 40; ++i) {
        const char* text = i % 4 == 1 ? "warns" : i % 4 == 2 ? "broken" : "fine";
        const std::string chart = directory.write("c" + std::to_string(i) + ".xml", text);
        options.inputs.push_back(chart);
        if (i % 4 == 1) expected += chart + ":3:4: warning: odd\n";
        if (i % 4 == 2) expected += chart + ":1:2: warning: first\n" + chart + ":5:6: error: bad value\n";
    }
    const Outcome outcome = run(options);
    EXPECT_EQ(outcome.status, kFailed);
    EXPECT_EQ(outcome.messages, expected);
    for (int i = 0; i < 40; ++i) EXPECT_EQ(directory.has("out/deep/c" + std::to_string(i) + ".json"), i % 4 != 2) << i;
}

TEST(RenderCommand, FailsForWarningsOnlyWhenStrict) {
    const TestDirectory directory;
    const std::string warns = directory.write("a.xml", "warns");
    const std::string fine = directory.write("b.xml", "fine");
    EXPECT_EQ(run({{warns}, directory.path("a.svg"), "", "", 0}).status, kDone);
    EXPECT_NE(directory.read("a.svg").find("<svg"), std::string::npos);
    RenderOptions options{{warns, fine}, "", directory.path("out"), "", 1};
    options.isStrict = true;
    const Outcome outcome = run(options);
    EXPECT_EQ(outcome.status, kFailed);
    EXPECT_TRUE(outcome.messages.starts_with(warns + ":3:4: warning: odd\n" + warns + ": error: no picture"))
        << outcome.messages;
    EXPECT_FALSE(directory.has("out/a.svg"));
    EXPECT_TRUE(directory.has("out/b.svg")) << "nothing is wrong with the other one";
}

TEST(RenderCommand, TellsOfFilesThatCannotBeReadOrWritten) {
    const TestDirectory directory;
    const std::string chart = directory.write("a.xml", "fine");
    const std::string svg = directory.path("a.svg");
    const std::string none = directory.path("none.xml");
    const std::string deep = directory.path("none/a.svg");
    const std::tuple<RenderOptions, std::string, const char*> cases[] = {
        {{{none}, svg, "", "", 0}, none + ": error: ", "no such document"},
        {{{"/dev/"}, svg, "", "", 0}, "/dev/: error: ", "a directory is no document"},
        {{{chart}, deep, "", "", 0}, deep + ": error: ", "-o makes no directory"},
        {{{chart}, "/dev/full", "", "svg", 0}, "/dev/full: error: ", "no room"},
        {{{chart}, "", chart, "svg", 0}, chart + ": error: the directory cannot be made", "a file is in the way"},
    };
    for (const auto& [options, start, why] : cases) {
        const Outcome outcome = run(options);
        EXPECT_EQ(outcome.status, kFailed) << why;
        EXPECT_TRUE(outcome.messages.starts_with(start)) << why << ": " << outcome.messages;
        EXPECT_EQ(std::count(outcome.messages.begin(), outcome.messages.end(), '\n'), 1) << why;
    }
    EXPECT_EQ(directory.entryCount(), 1U);
}

TEST(RenderCommand, DoesNothingWhenTheUsageIsWrong) {
    const TestDirectory directory;
    const std::string chart = directory.write("a.xml", "fine");
    const Outcome outcome = run({{chart, chart}, "", directory.path("out"), "", 0});
    EXPECT_EQ(run({{chart}, "a.\u009b", "", "", 0}).messages.find("\u009b"), std::string::npos) << "no raw controls";
    EXPECT_EQ(outcome.status, kWrongUsage);
    EXPECT_EQ(outcome.messages.rfind("vexa render: ", 0), 0U);
    EXPECT_EQ(directory.entryCount(), 1U) << "not even the directory is made";
}

}  // namespace
}  // namespace VEXA::Cli
