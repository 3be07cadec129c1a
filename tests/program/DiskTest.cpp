// Disks that are full, files that are in the way, readers that go away and users who lose patience.

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

namespace fs = std::filesystem;

/// A chart whose SVG takes about 100 bytes for each slice.
std::string pieOf(int slices) {
    std::string document = kOpen + "<pie>";
    for (int i = 0; i < slices; ++i) document += "<slice fill='red' value='" + std::to_string(1 + i % 7) + "'/>";
    return document + "</pie></root>";
}

TEST(Disk, WhatCannotBeWrittenIsToldAndLeavesTheFileOfBefore) {
    struct Case {
        const char* command;
        const char* message;
        const char* why;
    };
    // The limit of file sizes counts blocks of 1024 bytes in bash.
    const Case cases[] = {
        {VEXA_PROGRAM " render big.xml -o - >/dev/full", "<stdout>: error: ", "a full disk behind a redirection"},
        {VEXA_PROGRAM " render big.xml -o /dev/full --to svg", "/dev/full: error: ", "a full device"},
        {VEXA_PROGRAM " schema >/dev/full", "vexa: error: ", "not only pictures"},
        {VEXA_PROGRAM " --help >/dev/full", "vexa: error: ", "not even help"},
        {VEXA_PROGRAM " check --diagnostics json odd.xml >/dev/full", "error: ", "nor a check"},
        {"bash -c 'ulimit -f 4; " VEXA_PROGRAM " render big.xml -o old.svg'", "old.svg: error: ", "a quota"},
        {"bash -c 'ulimit -f 4; " VEXA_PROGRAM " render big.xml -o big.json'", "big.json: error: ", "and a new file"},
        {"bash -c 'ulimit -f 4; " VEXA_PROGRAM " render big.xml small.xml --out-dir out'",
         "out/big.svg: error: ", "one of a batch"},
        {VEXA_PROGRAM " render small.xml -o old.svg/new.svg", "old.svg/new.svg: error: ", "a file as a directory"},
        {VEXA_PROGRAM " render small.xml --out-dir old.svg", "old.svg: error: ", "and for a batch"},
        {VEXA_PROGRAM " render small.xml -o none/new.svg", "none/new.svg: error: ", "a directory that is not there"},
        {VEXA_PROGRAM " render small.xml -o . --to svg", "error: ", "a directory as a file"},
        {VEXA_PROGRAM " render small.xml -o /proc/new.svg", "/proc/new.svg: error: ", "where nobody may write"},
        {VEXA_PROGRAM " render small.xml --out-dir /proc/new", "/proc/new: error: ", "and for a batch"},
    };
    for (const Case& c : cases) {
        const TestDirectory directory;
        directory.write("big.xml", pieOf(200));
        directory.write("small.xml", pieOf(2));
        directory.write("odd.xml", kOpen + "<tilte/></root>");
        directory.write("old.svg", "yesterday's");
        const Outcome told = shell(directory, c.command);
        EXPECT_EQ(told.status, 1) << c.why << told.errors;
        EXPECT_NE(told.errors.find(c.message), std::string::npos) << c.why << ": " << told.errors;
        EXPECT_EQ(std::ranges::count(told.errors, '\n'), 1) << c.why << ": " << told.errors;
        EXPECT_EQ(directory.read("old.svg"), "yesterday's") << c.why;
        const bool isBatch = directory.has("out");
        EXPECT_EQ(directory.entryCount(), isBatch ? 7U : 6U) << c.why << ": nothing new but the output of the shell";
        EXPECT_TRUE(!isBatch || (directory.has("out/small.svg") && !directory.has("out/big.svg"))) << c.why;
    }
}

TEST(Disk, AReaderThatGoesAwayIsAnErrorNotASignal) {
    const TestDirectory directory;
    directory.write("big.xml", pieOf(20'000));
    for (const char* format : {"svg", "json"}) {
        const Outcome told = shell(directory, "bash -c '(" VEXA_PROGRAM " render big.xml -o - --to " +
                                                  std::string(format) + "; echo $? >status) | head -c 10 >start'");
        EXPECT_EQ(directory.read("status"), "1\n") << format;
        EXPECT_EQ(directory.read("start").size(), 10U) << format;
        EXPECT_TRUE(startsWith(told.errors, "<stdout>: error: ")) << format << told.errors;
    }
}

TEST(Disk, ADocumentIsNeverReplacedByItsPicture) {
    for (const char* output :
         {"chart.xml", "./chart.xml", "folder/../chart.xml", "hard.svg", "soft.svg", "softer.svg", "$PWD/chart.xml"}) {
        const TestDirectory directory;
        directory.write("chart.xml", pieOf(3));
        shell(directory, "mkdir folder; ln chart.xml hard.svg; ln -s chart.xml soft.svg; ln -s soft.svg softer.svg");
        for (const std::string input : {"chart.xml", "soft.svg", "hard.svg"}) {
            const Outcome told = run(directory, "render " + input + " --to svg -o " + output);
            EXPECT_EQ(told.status, 1) << output;
            EXPECT_NE(told.errors.find("would replace the document"), std::string::npos) << output << told.errors;
            EXPECT_EQ(directory.read("chart.xml"), pieOf(3)) << output;
        }
    }
    const TestDirectory directory;
    directory.write("chart.xml", pieOf(3));
    for (const char* command :
         {"render - --to svg -o chart.xml <chart.xml", "render chart.xml --to svg -o - 1<>chart.xml",
          "render - --to svg -o - <chart.xml 1<>chart.xml"}) {
        const Outcome told = shell(directory, VEXA_PROGRAM " " + std::string(command));
        EXPECT_EQ(told.status, 1) << command;
        EXPECT_NE(told.errors.find("would replace the document"), std::string::npos) << command << told.errors;
        EXPECT_EQ(directory.read("chart.xml"), pieOf(3)) << command;
    }
    shell(directory, "mkdir a; cp chart.xml a");
    const Outcome told = run(directory, "render chart.xml a/chart.xml --out-dir out");
    EXPECT_EQ(told.status, 2) << "two documents, one picture";
    EXPECT_NE(told.errors.find("would both be drawn"), std::string::npos) << told.errors;
    EXPECT_FALSE(directory.has("out"));
}

TEST(Disk, AFolderThatIsRemovedMeanwhileFailsWhatIsLeft) {
    const TestDirectory directory;
    directory.write("a.xml", pieOf(3));
    // The second document is a pipe whose writer removes the folder first.
    const Outcome told =
        shell(directory,
              "bash -c 'mkfifo b.xml; (exec 3>b.xml; while [ ! -e out/a.svg ]; do sleep 0.01; done; "
              "rm -r out; cat a.xml >&3) & " VEXA_PROGRAM " render a.xml b.xml --out-dir out --jobs 1'");
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(startsWith(told.errors, "out/b.svg: error: ")) << told.errors;
}

/// By each signal; `env` undoes that a shell starts what runs in the background with SIGINT ignored.
class Interrupted : public testing::TestWithParam<int> {};

TEST_P(Interrupted, ABatchLeavesWholeFilesOnly) {
    const TestDirectory directory;
    fs::create_directory(directory.path("in"));
    std::string whole;
    for (int i = 0; i < 300; ++i) directory.write("in/" + std::to_string(i) + ".xml", pieOf(2000));
    run(directory, "render in/0.xml -o whole.svg");
    whole = directory.read("whole.svg");
    ASSERT_GT(whole.size(), 100'000U);
    const std::string signal = std::to_string(GetParam());
    bool isInterrupted = false;
    for (int round = 0; round < 12; ++round) {
        const std::string delay = "0.0" + std::to_string(10 + round * 7);
        const Outcome ended = shell(directory, "bash -c 'rm -rf out; env --default-signal " VEXA_PROGRAM
                                               " render in/*.xml --out-dir out --jobs 4 & sleep " +
                                                   delay + "; kill -" + signal + " $!; wait $!'");
        isInterrupted |= ended.status == 128 + GetParam();
        if (!directory.has("out")) continue;
        for (const auto& entry : fs::directory_iterator(directory.path("out"))) {
            const std::string name = entry.path().filename().string();
            if (GetParam() == SIGKILL && name.starts_with(".vexa-")) continue;
            EXPECT_TRUE(name.ends_with(".svg")) << name;
            EXPECT_TRUE(directory.read("out/" + name) == whole) << name;
        }
    }
    EXPECT_TRUE(isInterrupted) << "no signal came in time";
}

INSTANTIATE_TEST_SUITE_P(Signals, Interrupted, testing::Values(SIGINT, SIGTERM, SIGHUP, SIGKILL),
                         [](const auto& signal) { return std::to_string(signal.param); });

}  // namespace
}  // namespace VEXA::Cli
