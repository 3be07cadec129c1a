#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

TEST(Disk, PngAndPdfThatDoNotFitLeaveTheFileOfBefore) {
    const TestDirectory directory;
    // Noise to a compressor: slices of many colours, and a text.
    std::string chart = kOpen + "<title height='20' value='Alpha'/><pie y='20' height='80'>";
    for (int i = 0; i < 200; ++i)
        chart += "<slice value='1' fill='rgb(" + std::to_string(i * 37 % 256) + "," + std::to_string(i * 91 % 256) +
                 ",7)'/>";
    directory.write("a.xml", chart + "</pie></root>");
    for (const char* picture : {"a.png", "a.pdf"}) {
        const std::string file = picture;
        directory.write(file, "yesterday's");
        const std::size_t before = directory.entryCount();
        const std::string render = VEXA_PROGRAM " render a.xml -o ";
        const Outcome full = shell(directory, render + "- --to " + file.substr(2) + " >/dev/full");
        EXPECT_EQ(full.status, 1) << file;
        EXPECT_TRUE(startsWith(full.errors, "<stdout>: error: ")) << full.errors;
        const Outcome quota = shell(directory, "bash -c 'ulimit -f 2; " + render + file + "'");
        EXPECT_EQ(quota.status, 1) << file;
        EXPECT_TRUE(startsWith(quota.errors, file + ": error: ")) << quota.errors;
        EXPECT_EQ(directory.read(file), "yesterday's");
        EXPECT_LE(directory.entryCount(), before + 2) << "those of the shell alone";
        EXPECT_EQ(shell(directory, render + file).status, 0) << file << " fits elsewhere";
        EXPECT_GT(directory.read(file).size(), 2048U) << "and is larger than the quota";
    }
}

}  // namespace
}  // namespace VEXA::Cli
