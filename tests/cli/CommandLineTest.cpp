#include "cli/CommandLine.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "cli/SchemaCommand.h"

namespace VEXA::Cli {
namespace {

CommandLine parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "/usr/bin/vexa");
    return parseCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

TEST(CommandLine, ReadsEveryOptionOfRender) {
    const CommandLine line = parse(
        {"render", "a",       "-", "--out-dir", "out", "--to", "json",         "--jobs",       "4",   "--font-dir", "f",
         "b",      "--scale", "2", "--dpi",     "300", "c",    "--font-dir=g", "--background", "#fff"});
    ASSERT_TRUE(line.render) << line.answer.text;
    EXPECT_EQ(line.render->inputs, (std::vector<std::string>{"a", "-", "b", "c"})) << "options stand anywhere";
    EXPECT_EQ(line.render->outputDirectory, "out");
    EXPECT_EQ(line.render->format, "json");
    EXPECT_EQ(line.render->jobs, 4U);
    EXPECT_EQ(line.render->scale, "2");
    EXPECT_EQ(line.render->dpi, "300");
    EXPECT_EQ(line.render->background, "#fff");
    EXPECT_EQ(line.render->fontDirectories, (std::vector<std::string>{"f", "g"})) << "one for each option";
    EXPECT_FALSE(line.render->isStrict);

    const CommandLine other = parse({"render", "-o", "-", "--scale", "", "--strict", "--", "--odd.xml", "fonts"});
    ASSERT_TRUE(other.render) << other.answer.text;
    EXPECT_EQ(other.render->output, "-");
    EXPECT_EQ(other.render->scale, "") << "a variable of the shell that is not set; the plan refuses it";
    EXPECT_EQ(other.render->dpi, std::nullopt);
    EXPECT_TRUE(other.render->isStrict);
    EXPECT_EQ(other.render->inputs, (std::vector<std::string>{"--odd.xml", "fonts"})) << "names of files";
}

TEST(CommandLine, ReadsEveryOptionOfFonts) {
    const CommandLine line = parse(
        {"fonts", "--family", "Lato, serif", "--font-dir", "f", "Total", "--bold", "--italic", "--size", "9.5", "Sum"});
    ASSERT_TRUE(line.fonts) << line.answer.text;
    EXPECT_EQ(line.fonts->family, "Lato, serif");
    EXPECT_EQ(line.fonts->directories, (std::vector<std::string>{"f"}));
    EXPECT_EQ(line.fonts->texts, (std::vector<std::string>{"Total", "Sum"}));
    EXPECT_TRUE(line.fonts->isBold && line.fonts->isItalic);
    EXPECT_EQ(line.fonts->size, "9.5");
    EXPECT_EQ(parse({"fonts"}).fonts->family, "sans-serif") << "of a document that asks for none";
}

TEST(CommandLine, ReadsEveryOptionOfCheckAndSchema) {
    const CommandLine line =
        parse({"check", "a", "--strict", "--diagnostics", "json", "-j", "3", "--font-dir", "f", "-", "render"});
    ASSERT_TRUE(line.check) << line.answer.text;
    EXPECT_EQ(line.check->inputs, (std::vector<std::string>{"a", "-", "render"})) << "the name of a command is a file";
    EXPECT_EQ(line.check->fontDirectories, (std::vector<std::string>{"f"}));
    EXPECT_EQ(line.check->diagnostics, "json");
    EXPECT_EQ(line.check->jobs, 3U);
    EXPECT_TRUE(line.check->isStrict);
    EXPECT_FALSE(parse({"check", "a"}).check->isStrict);
    EXPECT_EQ(parse({"schema", "--format", "markdown"}).schema->format, "markdown");
    EXPECT_EQ(parse({"schema"}).schema->format, "xsd") << "what editors read";
}

TEST(CommandLine, AnswersWhatAsksForHelpAndWhatIsWrong) {
    const std::tuple<std::vector<const char*>, ExitStatus, const char*, const char*> cases[] = {
        {{}, kWrongUsage, "render", "the bare program lists its commands, and is no success"},
        {{"--help"}, kDone, "vexa render chart.xml", "help of the program shows a first step"},
        {{"--version"}, kDone, "vexa " VEXA_VERSION "\n", "the version of the build"},
        {{"render", "--help"}, kDone, "Exit status", "help of the command, not of the program"},
        {{"fonts", "--help"}, kDone, "vexa fonts --family", "help of the other command"},
        {{"check", "--help"}, kDone, "hints never do", "help of the third one"},
        {{"schema", "--help"}, kDone, "vexa schema --format", "help of the fourth one"},
        {{"draw"}, kWrongUsage, "vexa: there is no command \"draw\"\n", "an unknown command"},
        {{"rendr", "a.xml"}, kWrongUsage, "did you mean \"render\"?", "one nearly right"},
        {{"a.xml", "-o", "a.svg"}, kWrongUsage, "vexa render FILE", "a document without a command"},
        {{"--font", "f"}, kWrongUsage, "vexa: ", "an option without a command"},
        {{"render", "a.xml", "--colour"}, kWrongUsage, "vexa render: there is no option \"--colour\"\n", "no option"},
        {{"render", "a.xml", "--scael=2"}, kWrongUsage, "did you mean \"--scale\"?", "one nearly right"},
        {{"render", "a.xml", "--out"}, kWrongUsage, "no option \"--out\"; did", "an abbreviation is not taken"},
        {{"render", "a.xml", "-o"}, kWrongUsage, "-o", "an option without its value"},
        {{"render", "a.xml", "--scale", "1", "--scale", "2"}, kWrongUsage, "--scale", "two scales for one picture"},
        {{"fonts", "--bold=maybe"}, kWrongUsage, "vexa fonts: ", "a flag has no such value"},
        {{"render", "a.xml", "--jobs", "0"}, kWrongUsage, "--jobs", "nobody would draw"},
        {{"render", "a.xml", "--jobs", "1000000"}, kWrongUsage, "--jobs", "more threads than a system gives"},
        {{"render", "a.xml", "-o", "a.svg", "-o", "b.svg"}, kWrongUsage, "-o", "two outputs for one document"},
    };
    for (const auto& [arguments, status, part, why] : cases) {
        const CommandLine line = parse(arguments);
        EXPECT_FALSE(line.render || line.fonts || line.check || line.schema) << why;
        EXPECT_EQ(line.answer.status, status) << why;
        EXPECT_NE(line.answer.text.find(part), std::string::npos) << why << "\n" << line.answer.text;
    }
}

TEST(SchemaCommand, PrintsTheFormatThatIsAskedFor) {
    const std::tuple<const char*, ExitStatus, const char*, const char*> cases[] = {
        {"xsd", kDone, "<?xml ", "<xs:element name=\"root\""},
        {"markdown", kDone, "", "\n# Reference"},
        {"", kWrongUsage, "vexa schema: ", "xsd or markdown"},
        {"\x1b[31m", kWrongUsage, "vexa schema: the format \"\\", "xsd or markdown"},
    };
    for (const auto& [format, status, start, part] : cases) {
        const Answer answer = describeDocuments({format});
        EXPECT_EQ(answer.status, status) << format;
        EXPECT_TRUE(answer.text.starts_with(start)) << format;
        EXPECT_NE(answer.text.find(part), std::string::npos) << format;
        EXPECT_TRUE(answer.text.ends_with('\n')) << format;
    }
}

}  // namespace
}  // namespace VEXA::Cli
