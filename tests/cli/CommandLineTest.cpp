#include "cli/CommandLine.h"

#include <gtest/gtest.h>

#include <tuple>

namespace VEXA::Cli {
namespace {

CommandLine parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "/usr/bin/vexa");
    return parseCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

TEST(CommandLine, ReadsEveryOptionOfRender) {
    const CommandLine line = parse({"render", "a", "-", "--out-dir", "out", "--to", "json", "--jobs", "4", "b"});
    ASSERT_TRUE(line.render) << line.text;
    EXPECT_EQ(line.render->inputs, (std::vector<std::string>{"a", "-", "b"}));
    EXPECT_EQ(line.render->outputDirectory, "out");
    EXPECT_EQ(line.render->format, "json");
    EXPECT_EQ(line.render->jobs, 4U);
}

TEST(CommandLine, TakesADashForAFileAndFilesThatStartWithOne) {
    const CommandLine line = parse({"render", "-o", "-", "--", "--odd.xml"});
    ASSERT_TRUE(line.render) << line.text;
    EXPECT_EQ(line.render->output, "-");
    EXPECT_EQ(line.render->inputs, (std::vector<std::string>{"--odd.xml"}));
}

TEST(CommandLine, AnswersWhatAsksForHelpAndWhatIsWrong) {
    const std::tuple<std::vector<const char*>, ExitStatus, const char*, const char*> cases[] = {
        {{}, kWrongUsage, "render", "the bare program lists its commands, and is no success"},
        {{"--help"}, kDone, "vexa render chart.xml", "help of the program shows a first step"},
        {{"--version"}, kDone, "vexa " VEXA_VERSION "\n", "the version of the build"},
        {{"render", "--help"}, kDone, "Exit status", "help of the command, not of the program"},
        {{"draw"}, kWrongUsage, "vexa: ", "an unknown command"},
        {{"render", "a.xml", "--colour"}, kWrongUsage, "vexa render: ", "an unknown option"},
        {{"render", "a.xml", "--out"}, kWrongUsage, "--out", "an abbreviation is not guessed"},
        {{"render", "a.xml", "-o"}, kWrongUsage, "-o", "an option without its value"},
        {{"render", "a.xml", "--jobs", "0"}, kWrongUsage, "--jobs", "nobody would draw"},
        {{"render", "a.xml", "--jobs", "1000000"}, kWrongUsage, "--jobs", "more threads than a system gives"},
        {{"render", "a.xml", "-o", "a.svg", "-o", "b.svg"}, kWrongUsage, "-o", "two outputs for one document"},
    };
    for (const auto& [arguments, status, part, why] : cases) {
        const CommandLine line = parse(arguments);
        EXPECT_FALSE(line.render) << why;
        EXPECT_EQ(line.status, status) << why;
        EXPECT_NE(line.text.find(part), std::string::npos) << why << "\n" << line.text;
    }
}

}  // namespace
}  // namespace VEXA::Cli
