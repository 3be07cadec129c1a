#include <algorithm>
#include <cstdint>

#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

std::uint32_t numberAt(const std::string& bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = at; i < at + 4 && i < bytes.size(); ++i)
        number = number << 8 | static_cast<std::uint8_t>(bytes[i]);
    return number;
}

TEST(Pictures, PngHasThePixelsAndTheResolutionThatAreAskedFor) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "</root>");  // 200 x 100 px
    struct Case {
        const char* options;
        std::uint32_t width;
        std::uint32_t height;
        std::uint32_t pixelsPerMetre;  ///< 0 where none is told
        const char* why;
    };
    const Case cases[] = {
        {"", 200, 100, 0, "a pixel for each px"},
        {"--scale 2", 400, 200, 0, "twice as many"},
        {"--scale 0.333", 67, 34, 0, "rounded up to whole ones"},
        {"--dpi 192", 400, 200, 7559, "192 / 0.0254 m; 96 px are an inch"},
        {"--dpi 300 --scale 1", 200, 100, 11811, "told only"},
    };
    for (const auto& [options, width, height, pixelsPerMetre, why] : cases) {
        const Outcome drawn = run(directory, "render chart.xml -o chart.png " + std::string(options));
        ASSERT_EQ(drawn.status, 0) << why << drawn.errors;
        const std::string png = directory.read("chart.png");
        EXPECT_TRUE(startsWith(png, "\x89PNG\r\n\x1a\n")) << why;
        EXPECT_EQ(numberAt(png, 16), width) << why;
        EXPECT_EQ(numberAt(png, 20), height) << why;
        const std::size_t chunk = png.find("pHYs");
        EXPECT_EQ(chunk == png.npos ? 0 : numberAt(png, chunk + 4), pixelsPerMetre) << why;
    }
}

TEST(Pictures, OnePdfHoldsAPageForEachDocumentInTheOrderGiven) {
    const TestDirectory directory;
    directory.write("a.xml", kOpen + "<title height='20' value='Alpha'/></root>");
    directory.write("b.xml",
                    "<root xmlns='http://vexa-charts.org/2008/vx' width='4in' height='2in' theme='none'>"
                    "<title height='20' value='Beta'/></root>");
    const Outcome drawn = run(directory, "render b.xml a.xml - b.xml -o all.pdf <a.xml");
    ASSERT_EQ(drawn.status, 0) << drawn.errors;
    EXPECT_EQ(drawn.errors, "");
    const Outcome pages = shell(directory, "pdfinfo -f 1 -l 9 all.pdf | tr -s ' '");
    ASSERT_EQ(pages.errors, "") << "install poppler-utils";
    for (const char* fact : {"Pages: 4\n", "1 size: 288 x 144 pts", "2 size: 150 x 75 pts", "4 size: 288 x 144 pts"}) {
        EXPECT_NE(pages.output.find(fact), std::string::npos) << fact << " in\n" << pages.output;
    }
    const std::string text = shell(directory, "pdftotext all.pdf -").output;
    std::string words = text;
    std::replace(words.begin(), words.end(), '\f', '\n');
    words.erase(std::unique(words.begin(), words.end(), [](char a, char b) { return a == '\n' && b == '\n'; }),
                words.end());
    EXPECT_EQ(words, "Beta\nAlpha\nAlpha\nBeta\n") << text;
    EXPECT_EQ(run(directory, "render b.xml a.xml - b.xml -o - --to pdf <a.xml").output, directory.read("all.pdf"));
}

TEST(Pictures, APdfThatWouldLackAPageIsNotWritten) {
    const TestDirectory directory;
    directory.write("fine.xml", kOpen + "<title value='Alpha'/></root>");
    directory.write("broken.xml", kOpen + "<title value='half'/>");
    directory.write("odd.xml", kOpen + "<tilte/></root>");
    directory.write("all.pdf", "yesterday's");
    const Outcome told = run(directory, "render fine.xml broken.xml odd.xml none.xml fine.xml -o all.pdf");
    EXPECT_EQ(told.status, 1);
    EXPECT_EQ(directory.read("all.pdf"), "yesterday's");
    const char* const lines[] = {"broken.xml:2:", "\nodd.xml:2:1: warning: ", "\nnone.xml: error: ",
                                 "\nall.pdf: error: not written, because 2 of its 5 pages would be missing\n"};
    std::size_t at = 0;
    for (const char* line : lines) {
        at = told.errors.find(line, at);
        ASSERT_NE(at, std::string::npos) << line << " in\n" << told.errors;
    }
    EXPECT_EQ(run(directory, "render broken.xml fine.xml -o - --to pdf").output, "") << "not even the start of it";
}

TEST(Pictures, AreTheSameWithOneThreadAndWithMany) {
    const TestDirectory directory;
    for (const char* format : {"png", "pdf"}) {
        for (const char* jobs : {"1", "8"}) {
            const Outcome drawn = run(directory, "render " VEXA_EXAMPLES "/*.xml --to " + std::string(format) +
                                                     " --out-dir " + jobs + " --jobs " + jobs);
            EXPECT_EQ(drawn.status, 0) << drawn.errors;
        }
    }
    EXPECT_EQ(shell(directory, "diff -r 1 8").status, 0);
    EXPECT_TRUE(directory.has("8/coffee-tasting.png") && directory.has("8/coffee-tasting.pdf"));
}

TEST(Pictures, TellWhatIsTooLargeAndLeaveNoFile) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "</root>");
    const Outcome told = run(directory, "render chart.xml -o chart.png --scale 1000");
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(startsWith(told.errors, "chart.xml: error: ")) << told.errors;
    EXPECT_FALSE(directory.has("chart.png"));
}

TEST(Pictures, TellOnceThatTheirLibraryIsMissing) {
    const TestDirectory directory;
    directory.write("a.xml", kOpen + "</root>");
    directory.write("b.xml", kOpen + "</root>");
    directory.write("libcairo.so.2", "no library");
    for (const char* arguments : {"a.xml b.xml --to png --out-dir out", "a.xml b.xml -o out.pdf", "a.xml -o out.png"}) {
        const Outcome told = shell(directory, "LD_LIBRARY_PATH=. " VEXA_PROGRAM " render " + std::string(arguments));
        EXPECT_EQ(told.status, 1) << arguments;
        EXPECT_TRUE(startsWith(told.errors, "vexa: error: the library \"libcairo.so.2\" cannot be loaded"))
            << told.errors;
        EXPECT_EQ(told.errors.find('\n'), told.errors.size() - 1) << told.errors;
    }
    EXPECT_FALSE(directory.has("out") || directory.has("out.pdf") || directory.has("out.png"));
}

TEST(Pictures, StandOnTheBackgroundThatIsAskedFor) {
    const TestDirectory directory;
    directory.write("chart.xml", kOpen + "</root>");
    ASSERT_EQ(run(directory, "render chart.xml -o chart.pdf --background '#0080ff'").status, 0);
    const Outcome painted = shell(directory, "pdftoppm -r 96 chart.pdf");  // the pixels, binary, to standard output
    ASSERT_EQ(painted.status, 0) << "install poppler-utils: " << painted.errors;
    EXPECT_TRUE(painted.output.ends_with(std::string("\x00\x80\xff", 3))) << "the last pixel";
}

}  // namespace
}  // namespace VEXA::Cli
