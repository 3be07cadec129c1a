// Runs the program itself, as a shell does.

#include <nlohmann/json.hpp>
#include <sstream>
#include <vector>

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
        {kOpen + "<title value='Gr\xFC\xDF'/></root>", "chart.xml:2:17: ", "as UTF-8", "bytes of Latin-1"},
        {kOpen + "<title value='Gr\xC3\xBC\xC3\x9F' & /></root>", "chart.xml:2:", "&amp;", "a fault beside UTF-8"},
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
    directory.write("chart.xml",
                    kOpen + "  <tilte value='a'/><root/><serie/>\n<title value='kept' grouping='stacked'/></root>");
    const Outcome told = run(directory, "render chart.xml -o chart.svg");
    EXPECT_EQ(told.status, 0);
    EXPECT_TRUE(startsWith(told.errors, "chart.xml:2:3: warning: ")) << told.errors;
    for (const char* help :
         {"\"title\" and is ignored; write it on <area-chart>, <bar-chart> or <line-chart>", "did you mean \"title\"?",
          "no element takes it", "inside <area-chart>, <bar-chart> or <line-chart>"}) {
        EXPECT_NE(told.errors.find(help), std::string::npos) << told.errors;
    }
    EXPECT_NE(directory.read("chart.svg").find("kept"), std::string::npos);
}

TEST(Program, ChecksWithTheStatusOfTheWorst) {
    const TestDirectory directory;
    directory.write("error.xml", kOpen + "<titel/>\n<title value='a' height='20' x='wide'/></root>");
    directory.write("warning.xml", kOpen + "<titel/><title value='a' height='20'/></root>");
    directory.write("hint.xml", kOpen + "<legend><legend-item caption='A'/></legend></root>");
    struct Case {
        const char *arguments, *command;
        int status;
        std::vector<const char*> lines;
    };
    const char* const first = "error.xml:2:1: warning: ";
    const char* const second = "error.xml:3:1: error: ";
    const char* const warning = "warning.xml:2:1: warning: ";
    const char* const hint = "hint.xml:2:1: hint: ";
    const char* const refused = "warning.xml: error: no picture is written";
    const Case cases[] = {
        {"error.xml warning.xml hint.xml --jobs 2", "check", 1, {first, second, warning, hint}},
        {"warning.xml hint.xml", "check", 0, {warning, hint}},
        {"--strict hint.xml", "check", 0, {hint}},
        {"--strict warning.xml", "check", 1, {warning}},
        {"--strict warning.xml -o a.svg", "render", 1, {warning, refused}},
        {"--strict hint.xml -o b.svg", "render", 0, {}},
    };
    for (const Case& c : cases) {
        const Outcome told = run(directory, std::string(c.command) + " " + c.arguments);
        EXPECT_EQ(told.status, c.status) << c.arguments;
        EXPECT_EQ(told.output, "") << c.arguments;
        std::istringstream lines(told.errors);
        std::string line;
        for (const char* start : c.lines) {
            std::getline(lines, line);
            EXPECT_TRUE(startsWith(line, start)) << c.arguments << ": " << line;
        }
        EXPECT_FALSE(std::getline(lines, line)) << c.arguments << ": " << line;
    }
    EXPECT_FALSE(directory.has("a.svg"));
    EXPECT_TRUE(directory.has("b.svg")) << "hints are for checks";
}

TEST(Program, TellsEditorsWhatIsWrongInJson) {
    const TestDirectory directory;
    const std::string hostile = "\xE2\x80\xA8 \"\\ \x7F{0}&lt;/script>\xF0\x9F\x98\x80";
    const std::string name = "a \"b\\.xml";
    directory.write(name, kOpen + "<title fill='" + hostile + "'/>\n<" + std::string(300, 'z') + "/></root>");
    const Outcome told = run(directory, "check --diagnostics json none.xml 'a \"b\\.xml'");
    EXPECT_EQ(told.status, 1);
    EXPECT_EQ(told.errors, "");
    std::istringstream lines(told.output);
    std::vector<nlohmann::json> problems;
    for (std::string line; std::getline(lines, line);) problems.push_back(nlohmann::json::parse(line));
    ASSERT_EQ(problems.size(), 3U) << told.output;
    EXPECT_EQ(problems[0]["file"], "none.xml");
    EXPECT_EQ(problems[0]["severity"], "error");
    EXPECT_FALSE(problems[0].contains("line")) << "the whole file is meant";
    EXPECT_EQ(problems[1]["file"], name);
    EXPECT_EQ(problems[1]["line"], 2);
    EXPECT_EQ(problems[1]["column"], 1);
    EXPECT_EQ(problems[1]["number"], 3003);
    const std::string message = problems[1]["message"];
    EXPECT_NE(message.find("\\u2028 \"\\ \\u007f{0}</script>\xF0\x9F\x98\x80"), std::string::npos) << message;
    EXPECT_EQ(problems[2]["severity"], "warning");
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
    directory.write("fine.xml", kOpen + "<title value='a' height='20'/></root>");
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
        {"render chart.xml -o chart.xml --to svg", 1, "over the document itself"},
        {"render none.xml chart.xml --out-dir out", 1, "one of two cannot be read"},
        {"check", 2, "nothing to check"},
        {"check chart.xml --diagnostics xml", 2, "a form that there is not"},
        {"check none.xml", 1, "a file that cannot be read"},
        {"check --strict fine.xml", 0, "nothing is wrong"},
        {"check /dev/", 1, "a directory"},
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
