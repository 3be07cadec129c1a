// Runs the program itself, as a shell does.

#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

TEST(Program, TellsEveryFaultInOneLineWithItsPlaceAndLeavesNoFile) {
    struct Case {
        std::string document;
        const char* start;
        const char* contains;
        const char* why;
    };
    const Case cases[] = {
        {kOpen + "<title>\n</root>", "chart.xml:3:3: error: ", "malformed", "the end tag of another element"},
        {kOpen + "<title value='a'", "chart.xml:2:", "malformed", "a file that was cut off"},
        {kOpen + "  <title stroke-width='thick'/></root>", "chart.xml:2:", "\"thick\"", "a value that is no length"},
        {"", "chart.xml:1:1: error: ", "empty", "an empty file"},
        {" \n<!-- <root/> -->\n", "chart.xml:1:1: error: ", "empty", "a file of blanks and comments"},
        {"<title xmlns='http://vexa-charts.org/2008/vx'/>", "chart.xml:1:1: error: ", "root", "an element of a chart"},
        {"<svg/>", "chart.xml:1:1: error: ", "svg", "a document of another kind"},
        {"<!DOCTYPE root>\n" + kOpen + "</root>", "chart.xml:1:", "DOCTYPE", "entities are not read"},
    };
    for (const Case& testCase : cases) {
        const TestDirectory directory;
        directory.write("chart.xml", testCase.document);
        const Outcome told = run(directory, "render chart.xml -o chart.svg");
        EXPECT_EQ(told.status, 1) << testCase.why;
        EXPECT_TRUE(startsWith(told.errors, testCase.start)) << testCase.why << ": " << told.errors;
        EXPECT_NE(told.errors.find(testCase.contains), std::string::npos) << testCase.why << ": " << told.errors;
        EXPECT_EQ(told.errors.find('\n'), told.errors.size() - 1) << testCase.why << ": " << told.errors;
        EXPECT_FALSE(directory.has("chart.svg")) << testCase.why;
    }
}

TEST(Program, WarnsOfElementsItCannotUseAndDrawsTheRest) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "  <tilte value='a'/><root/><serie/>\n<title value='kept'/></root>");
    const Outcome told = run(directory, "render chart.xml -o chart.svg");
    EXPECT_EQ(told.status, 0);
    EXPECT_TRUE(startsWith(told.errors, "chart.xml:2:3: warning: ")) << told.errors;
    for (const char* help :
         {"did you mean \"title\"?", "no element takes it", "inside <area-chart>, <bar-chart> or <line-chart>"}) {
        EXPECT_NE(told.errors.find(help), std::string::npos) << told.errors;
    }
    EXPECT_NE(directory.read("chart.svg").find("kept"), std::string::npos);
}

TEST(Program, ReadsStandardInputAndWritesStandardOutput) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "</root>");
    directory.write("broken.xml", kOpen);
    const Outcome drawn = run(directory, "render - -o - --to json <chart.xml");
    EXPECT_EQ(drawn.status, 0) << drawn.errors;
    EXPECT_TRUE(
        startsWith(drawn.output, "{\"op\":\"beginDocument\"}\n{\"op\":\"beginPage\",\"width\":200,\"height\":100}\n"))
        << drawn.output;
    const Outcome failed = run(directory, "render - -o - <broken.xml");
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.output, "") << "not even the start of a picture";
    EXPECT_TRUE(startsWith(failed.errors, "<stdin>:")) << failed.errors;
}

TEST(Program, DrawsTheSameWithOneThreadAndWithMany) {
    const TestDirectory directory;
    for (const char* jobs : {"1", "8"}) {
        const Outcome drawn =
            run(directory, "render " VEXA_EXAMPLES "/*.xml --out-dir " + std::string(jobs) + " --jobs " + jobs);
        EXPECT_EQ(drawn.status, 0) << drawn.errors;
        EXPECT_EQ(drawn.errors, "");
    }
    EXPECT_EQ(shell(directory, "diff -r 1 8").status, 0);
    EXPECT_TRUE(directory.has("8/coffee-tasting.svg"));
}

TEST(Program, EndsWithTheStatusThatItsHelpPromises) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "</root>");
    struct Case {
        const char* arguments;
        int status;
        const char* why;
    };
    const Case cases[] = {
        {"--help", 0, "what was asked for"},
        {"--version", 0, "what was asked for"},
        {"", 2, "nothing to do"},
        {"render chart.xml", 2, "nowhere to draw to"},
        {"render chart.xml -o chart.gif", 2, "a format that cannot be written"},
        {"render chart.xml chart.xml -o chart.svg", 2, "two pictures in a file that holds one"},
        {"render chart.xml -o chart.svg --scale 2", 2, "an option that the format has no use for"},
        {"render chart.xml -o chart.xml --to svg", 2, "the document itself"},
        {"render none.xml chart.xml --out-dir out", 1, "one of two cannot be read"},
    };
    for (const Case& testCase : cases) {
        const Outcome told = run(directory, testCase.arguments);
        EXPECT_EQ(told.status, testCase.status) << testCase.why << ": " << told.errors;
        EXPECT_EQ(told.errors.empty(), testCase.status == 0) << testCase.why;
    }
    EXPECT_TRUE(directory.has("out/chart.svg")) << "the other one is drawn";
    EXPECT_EQ(directory.read("chart.xml"), kOpen + "</root>");
}

}  // namespace
}  // namespace VEXA::Cli
