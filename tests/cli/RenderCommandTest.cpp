#include "cli/RenderCommand.h"

#include <gtest/gtest.h>

#include <new>

#include "tests/cli/CliTestTools.h"
#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Log.h"

namespace VEXA::Cli {
namespace {

constexpr int kFreeText = 2001;  // message whose text is its argument

std::string readAll(IO::Stream& stream) {
    std::string text;
    char buffer[7];
    for (std::size_t count = stream.read(buffer, sizeof buffer); count > 0;
         count = stream.read(buffer, sizeof buffer)) {
        text.append(buffer, count);
    }
    return text;
}

void drawPage(RenderContext& surface) {
    surface.beginDocument();
    surface.beginPage({10, 10});
    surface.endPage();
    surface.endDocument();
}

/// Stands for the engine: the text of a document says what happens to it.
void paintByText(SmartPtr<IO::Stream> stream, SmartPtr<RenderContext> surface) {
    const std::string text = readAll(*stream);
    if (text.find("nothing") != std::string::npos || text.empty()) SmartPtr<Object>()->AddRef();
    if (text == "warns") Log::warning(kFreeText, {String("odd")}, {3, 4});
    if (text == "broken") {
        Log::warning(kFreeText, {String("first")}, {1, 2});
        surface->beginDocument();
        surface->beginPage({10, 10});
        raise(UnreacheableCodeException("bad value"), "Length", 1, {5, 6});
    }
    if (text == "no root") raise(UnreacheableCodeException("the top element is not root"), "VexaEngine", 34);
    if (text == "placeless") raise(UnreacheableCodeException("somewhere"), "VexaTheme", 34);
    if (text == "huge") throw std::bad_alloc();
    drawPage(*surface);
}

struct Outcome {
    ExitStatus status;
    std::string messages;
};

Outcome run(const RenderOptions& options) {
    RecordingConsole console;
    const ExitStatus status = render(options, paintByText, console);
    return {status, console.text()};
}

TEST(RenderCommand, TellsWhatFailsInOneLineWithItsPlaceAndLeavesNoFile) {
    struct Case {
        const char* document;
        const char* line;
        const char* why;
    };
    const Case cases[] = {
        {"broken", ":1:2: warning: first\n@:5:6: error: bad value\n", "warnings before it are told, the error once"},
        {"", ":1:1: error: the document is empty; a chart document starts with the element root\n", "plain words"},
        {"\n<!-- <nothing/> -->\n<?i <nothing/>?>",
         ":1:1: error: the document is empty; a chart document starts with the element root\n",
         "tags in comments and instructions are no elements"},
        {"<!----><nothing/>",
         ": error: a mandatory object is missing: the document is empty, or an element lacks a child that it needs; "
         "add "
         "it\n",
         "an object is missing where there are elements"},
        {"no root", ":1:1: error: the top element is not root\n", "the document as a whole is wrong"},
        {"placeless", ": error: somewhere\n", "no place is better than a wrong one"},
        {"huge", ": error: there is not enough memory\n", "what others throw is told too"},
    };
    for (const Case& testCase : cases) {
        const TestDirectory directory;
        const std::string chart = directory.write("chart.xml", testCase.document);
        std::string expected = "@" + std::string(testCase.line);
        for (std::size_t at = expected.find('@'); at != std::string::npos; at = expected.find('@')) {
            expected.replace(at, 1, chart);
        }
        const Outcome outcome = run({{chart}, directory.path("chart.svg"), "", "", 0});
        EXPECT_EQ(outcome.status, kFailed) << testCase.why;
        EXPECT_EQ(outcome.messages, expected) << testCase.why;
        EXPECT_EQ(directory.entryCount(), 1U) << testCase.why;
    }
}

TEST(RenderCommand, LeavesThePictureOfBeforeWhenADocumentFails) {
    const TestDirectory directory;
    const std::string chart = directory.write("chart.xml", "broken");
    const std::string picture = directory.write("chart.json", "yesterday");
    EXPECT_EQ(run({{chart}, picture, "", "", 0}).status, kFailed);
    EXPECT_EQ(directory.read("chart.json"), "yesterday");
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
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(directory.has("out/deep/c" + std::to_string(i) + ".json"), i % 4 != 2) << i;
    }
}

TEST(RenderCommand, WarnsAndSucceeds) {
    const TestDirectory directory;
    const Outcome outcome = run({{directory.write("a.xml", "warns")}, directory.path("a.svg"), "", "", 0});
    EXPECT_EQ(outcome.status, kDone);
    EXPECT_NE(directory.read("a.svg").find("<svg"), std::string::npos);
}

TEST(RenderCommand, TellsOfFilesThatCannotBeReadOrWritten) {
    const TestDirectory directory;
    const std::string chart = directory.write("a.xml", "fine");
    struct Case {
        RenderOptions options;
        std::string start;
        const char* why;
    };
    const Case cases[] = {
        {{{directory.path("none.xml")}, directory.path("a.svg"), "", "", 0},
         directory.path("none.xml") + ": error: ",
         "no such document"},
        {{{directory.path("")}, directory.path("a.svg"), "", "", 0},
         directory.path("") + ": error: ",
         "a directory is no document"},
        {{{chart}, directory.path("none/a.svg"), "", "", 0},
         directory.path("none/a.svg") + ": error: ",
         "-o makes no directory"},
        {{{chart}, "/dev/full", "", "svg", 0}, "/dev/full: error: ", "no room"},
        {{{chart}, "", chart, "svg", 0}, chart + ": error: the directory cannot be made", "a file is in the way"},
    };
    for (const Case& testCase : cases) {
        const Outcome outcome = run(testCase.options);
        EXPECT_EQ(outcome.status, kFailed) << testCase.why;
        EXPECT_EQ(outcome.messages.rfind(testCase.start, 0), 0U) << testCase.why << ": " << outcome.messages;
        EXPECT_EQ(std::count(outcome.messages.begin(), outcome.messages.end(), '\n'), 1) << testCase.why;
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
