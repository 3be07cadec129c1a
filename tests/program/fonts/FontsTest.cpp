#include <algorithm>

#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

namespace fs = std::filesystem;

/// The examples whose texts need no other font than the one that is built in.
std::string latinExamples() {
    std::string files;
    for (const auto& entry : fs::directory_iterator(VEXA_EXAMPLES)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const auto isForeign = [](char byte) {  // leads a character from Hebrew on, but for those of punctuation (E2)
            const auto lead = static_cast<unsigned char>(byte);
            return lead >= 0xD6 && lead != 0xE2;
        };
        if (std::none_of(text.begin(), text.end(), isForeign)) files += " " + entry.path().string();
    }
    return files;
}

/// Puts files that are no libraries where the system's loader looks first: who loads one of these fails.
std::string withBrokenLibraries(const TestDirectory& directory) {
    for (const char* name :
         {"harfbuzz.so.0", "fribidi.so.0", "fontconfig.so.1", "cairo.so.2", "freetype.so.6", "png16.so.16", "z.so.1"}) {
        directory.write("lib" + std::string(name), "no library");
    }
    return "LD_LIBRARY_PATH=" + directory.path("") + " ";
}

TEST(Fonts, OfTheMachineAndTheirLibrariesPlayNoPartInLatinPictures) {
    const TestDirectory directory;
    directory.write("empty", "");
    const std::string alone = withBrokenLibraries(directory) +
                              "env -u HOME -u XDG_CACHE_HOME FONTCONFIG_FILE=" + directory.path("empty") + " ";
    const std::string files = latinExamples();
    ASSERT_NE(files.find("coffee-tasting"), std::string::npos);
    for (const char* format : {"svg", "json"}) {
        const std::string arguments = " render " + files + " --to " + format + " --out-dir ";
        EXPECT_EQ(shell(directory, VEXA_PROGRAM + arguments + "usual").status, 0);
        const Outcome drawn = shell(directory, alone + VEXA_PROGRAM + arguments + "alone");
        EXPECT_EQ(drawn.status, 0);
        EXPECT_EQ(drawn.errors, "");
    }
    EXPECT_EQ(shell(directory, "diff -r usual alone").status, 0);
}

TEST(Fonts, NameTheLibraryThatIsMissing) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "<title value='\u7dcf\u8a08'/></root>");
    const Outcome told =
        shell(directory, withBrokenLibraries(directory) + VEXA_PROGRAM " render chart.xml -o chart.svg");
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(startsWith(told.errors, "chart.xml")) << told.errors;
    EXPECT_NE(told.errors.find("error: the library \"libharfbuzz.so.0\" cannot be loaded"), std::string::npos)
        << told.errors;
    EXPECT_FALSE(directory.has("chart.svg"));
}

TEST(Fonts, OfTheCallerAreFound) {
    const TestDirectory directory;
    fs::create_directories(directory.path("mine/deep"));
    fs::copy(VEXA_FONT_DIR "/LiberationMono-Regular.ttf", directory.path("mine/deep/mono.ttf"));
    directory.write("chart.xml", kOpen + "<title font-family='Liberation Mono' value='mm'/></root>");
    const Outcome listed = run(directory, "fonts --family 'Liberation Mono' --font-dir mine mm");
    EXPECT_EQ(listed.status, 0) << listed.errors;
    // Every glyph is 1229 units of 2048 wide, 7.2 px at 12.
    EXPECT_NE(listed.output.find("\"mm\": 14.4 px"), std::string::npos) << listed.output;
    EXPECT_NE(listed.output.find("mine/deep/mono.ttf)"), std::string::npos) << listed.output;
    EXPECT_EQ(run(directory, "render chart.xml -o chart.svg --font-dir mine").status, 0);
}

TEST(Fonts, OfADirectoryThatIsNoneAreAnErrorBeforeAnythingIsDrawn) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "</root>");
    for (const char* arguments : {"render chart.xml --out-dir out --font-dir nowhere", "fonts --font-dir nowhere",
                                  "render chart.xml --out-dir out --font-dir chart.xml"}) {
        const Outcome told = run(directory, arguments);
        EXPECT_EQ(told.status, 1) << arguments;
        EXPECT_TRUE(startsWith(told.errors, "vexa: error: ")) << told.errors;
        EXPECT_TRUE(told.errors.find("nowhere") != std::string::npos ||
                    told.errors.find("chart.xml") != std::string::npos)
            << told.errors;
    }
    EXPECT_FALSE(directory.has("out")) << "not even the directory";
}

}  // namespace
}  // namespace VEXA::Cli
