// What shells and manual readers are given, tried with a shell and a reader.

#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

/// What bash offers for a line that ends at the cursor, the words in one line; the last word may be empty.
std::string offeredFor(const TestDirectory& directory, const std::string& words) {
    directory.write("complete.bash",
                    "source <(\"$1\" completion bash); shift\n"
                    "COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _vexa\n"
                    "printf '%s\\n' \"${COMPREPLY[@]}\" | LC_ALL=C sort | tr '\\n' ' '\n");
    const Outcome told = shell(directory, "bash complete.bash " VEXA_PROGRAM " vexa " + words);
    return told.errors + told.output;
}

TEST(Completion, OffersInBashWhatMayFollow) {
    const TestDirectory directory;
    directory.write("chart.xml", "");
    directory.write("chart.svg", "");
    shell(directory, "mkdir charts.d");
    const struct {
        const char *words, *offered, *why;
    } cases[] = {
        {"ch", "check ", "a command"},
        {"--v", "--version ", "an option of the program"},
        {"render --s", "--scale --strict ", "options"},
        {"render --to s", "svg ", "words that a value may be"},
        {"render --to = j", "json ", "bash takes --to=j for three words"},
        {"schema --format ''", "markdown xsd ", "all of them"},
        {"completion ''", "bash fish zsh ", "words that an argument may be"},
        {"check char", "chart.xml charts.d ", "documents and directories"},
        {"render chart.xml -o char", "chart.svg chart.xml charts.d ", "any file, to write to"},
        {"render chart.xml --out-dir char", "charts.d ", "directories alone"},
        {"render --jobs ''", " ", "numbers are not guessed"},
        {"man ''", " ", "nothing follows"},
    };
    for (const auto& c : cases) EXPECT_EQ(offeredFor(directory, c.words), c.offered) << c.words << ": " << c.why;
}

TEST(Completion, IsForThreeShells) {
    const TestDirectory directory;
    for (const char* const name : {"bash", "zsh", "fish"}) {
        const Outcome told = run(directory, std::string("completion ") + name);
        EXPECT_EQ(told.status, 0);
        for (const char* const part : {"render", "check", "strict", "Written by: vexa completion"})
            EXPECT_NE(told.output.find(part), std::string::npos) << name << ' ' << part;
    }
    const Outcome wrong = run(directory, "completion 'tc\nsh'");
    EXPECT_EQ(wrong.status, 2);
    EXPECT_TRUE(
        startsWith(wrong.errors, "vexa completion: the shell \"tc\\nsh\" is unknown; write bash, zsh or fish\n"))
        << wrong.errors;
    EXPECT_EQ(run(directory, "completion").status, 2);
}

TEST(ManPage, TellsEveryOptionAndIsWellFormed) {
    const TestDirectory directory;
    const Outcome page = run(directory, "man > vexa.1 && groff -man -ww -z -Tutf8 vexa.1");
    EXPECT_EQ(page.status, 0);
    EXPECT_EQ(page.errors, "") << "warnings of groff";
    const Outcome text = shell(directory, "groff -man -Tutf8 -P-cbou vexa.1");
    for (const char* const part : {"vexa render [OPTION...] [FILE...]", "-o, --output FILE", "--to svg|json",
                                   "--diagnostics text|json", "completion [OPTION...] [bash|zsh|fish]", "Exit status"})
        EXPECT_NE(text.output.find(part), std::string::npos) << part << '\n' << text.output;
}

}  // namespace
}  // namespace VEXA::Cli
