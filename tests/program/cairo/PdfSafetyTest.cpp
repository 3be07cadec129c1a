#include "tests/program/ProgramTools.h"

namespace VEXA::Cli {
namespace {

TEST(OutputSafety, APdfHoldsHostileTextsAsTextAlone) {
    const TestDirectory directory;
    const char* const texts[] = {"</text><script>alert(1)</script>",
                                 ")Tj/JavaScript(x)>>endobj",
                                 "\\)\\(%%EOF",
                                 "javascript:alert(1)",
                                 "http://x.example/URI<</S/URI>>",
                                 "<!--]]>&amp;"};
    for (const std::string text : texts) {
        std::string value;
        for (const char c : text) value += c == '&' ? "&amp;" : c == '<' ? "&lt;" : std::string(1, c);
        directory.write("chart.xml",
                        "<root xmlns='http://vexa-charts.org/2008/vx' width='900' height='90' theme='none' "
                        "id=\"" +
                            value + "\"><title height='40' font-family=\"" + value + "\" value=\"" + value +
                            "\"/></root>");
        const Outcome drawn = run(directory, "render chart.xml -o chart.pdf");
        ASSERT_EQ(drawn.status, 0) << drawn.errors;
        const Outcome checked = shell(directory, "qpdf --check chart.pdf");
        EXPECT_EQ(checked.status, 0) << "install qpdf: " << text << checked.output << checked.errors;
        EXPECT_TRUE(startsWith(shell(directory, "pdftotext chart.pdf -").output, text + "\n")) << text;
        EXPECT_TRUE(startsWith(shell(directory, "pdfinfo chart.pdf").output, "Title:           " + text + "\n"))
            << shell(directory, "pdfinfo chart.pdf").output;
        const std::string objects = shell(directory, "qpdf --qdf --object-streams=disable chart.pdf -").output;
        for (const char* action : {"/S /JavaScript", "/S /URI", "/OpenAction", "/Launch", "/EmbeddedFile"})
            EXPECT_EQ(objects.find(action), std::string::npos) << text << action;
    }
}

}  // namespace
}  // namespace VEXA::Cli
