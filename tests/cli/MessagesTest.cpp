#include "cli/Messages.h"

#include <tuple>

#include "cli/Progress.h"
#include "tests/cli/CliTestTools.h"

namespace VEXA::Cli {
namespace {

TEST(Messages, AreOneLineThatStartsWithThePlace) {
    using enum Severity;
    const std::tuple<const char*, SourcePlace, Severity, const char*, const char*, const char*> cases[] = {
        {"a.xml", {7, 31}, Error, "no", "a.xml:7:31: error: no\n", "what editors jump to"},
        {"a.xml", {}, Warning, "hm", "a.xml: warning: hm\n", "no place, no numbers"},
        {"a.xml", {1, 1}, Hint, "oh", "a.xml:1:1: hint: oh\n", "the third severity"},
        {"a\nb", {}, Error, "x\x1b[2J\x7f", "a\\nb: error: x\\u001b[2J\\u007f\n", "nothing starts a line or steers"},
        {"\x9b.xml", {}, Error, "no", "\uFFFD.xml: error: no\n", "nor the single byte of other encodings"},
        {"ä.xml", {}, Error, "ö", "ä.xml: error: ö\n", "UTF-8 stays as it is"},
    };
    for (const auto& [file, place, severity, text, line, why] : cases) {
        EXPECT_EQ(messageLine(file, place, severity, text), line) << why;
    }
}

TEST(Messages, CallTheStandardStreamsByTheirNames) {
    EXPECT_EQ(inputName("-"), "<stdin>");
    EXPECT_EQ(outputName("-"), "<stdout>");
}

TEST(Progress, ShowsOneLineThatGoesAway) {
    RecordingConsole console(true);
    {
        Progress progress(console, 3, std::chrono::seconds(0));
        progress.show(1, 0);
        progress.show(2, 1);
        progress.clear();
        progress.clear();
        progress.show(3, 1);
    }
    EXPECT_EQ(console.text(),
              "\r\x1b[Kdrawn 1 of 3\r\x1b[Kdrawn 2 of 3, 1 failed\r\x1b[K"
              "\r\x1b[Kdrawn 3 of 3, 1 failed\r\x1b[K");
}

TEST(Progress, IsSilentWhereItWouldDisturb) {
    RecordingConsole file(false);
    RecordingConsole single(true);
    RecordingConsole quick(true);
    {
        Progress(file, 3, std::chrono::seconds(0)).show(1, 0);
        Progress(single, 1, std::chrono::seconds(0)).show(1, 0);
        Progress progress(quick, 1000, std::chrono::hours(1));
        for (std::size_t done = 1; done <= 1000; ++done) progress.show(done, 0);
    }
    EXPECT_EQ(file.text(), "") << "a file keeps every change of the line";
    EXPECT_EQ(single.text(), "") << "one document is over before it could be read";
    EXPECT_EQ(quick.text(), "\r\x1b[Kdrawn 1 of 1000\r\x1b[K") << "a line for each quick job would cost more than it";
}

}  // namespace
}  // namespace VEXA::Cli
