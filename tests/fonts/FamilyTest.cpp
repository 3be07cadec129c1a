#include "tests/fonts/FontTestTools.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

TEST(Families, AreTakenInTurn) {
    struct Case {
        const char* why;
        const char* families;
        const char* face;
    };
    const Case cases[] = {
        {"built in, whatever the machine has", "Arial, Noto Serif", "Liberation Sans"},
        {"built in, in any case of letters", "HELVETICA", "Liberation Sans"},
        {"one of the machine", "Noto Serif", "Noto Serif"},
        {"in any case of letters, with or without spaces", "noto SERIF", "Noto Serif"},
        {"as fontconfig compares", "NotoSerif", "Noto Serif"},
        {"in quotation marks", "'Noto Serif', serif", "Noto Serif"},
        {"unknown ones are passed over", "Nobody Has This, Also Not This, Noto Serif", "Noto Serif"},
        {"what is left is built in", "Nobody Has This", "Liberation Sans"},
        {"by a rule of the machine: of the same widths", "Times New Roman", "Liberation Serif"},
        {"the same for a typewriter face", "Courier New, monospace", "Liberation Mono"},
        {"a member of a larger family", "DejaVu Sans Mono", "DejaVu Sans Mono"},
        {"a family of many languages", "Noto Sans CJK JP", "Noto Sans CJK JP"},
        {"a name too long to be one counts up to its limit", "", "Liberation Sans"},
    };
    for (const Case& c : cases) EXPECT_EQ(faceOf(c.families), c.face) << c.why;
    const std::string endless = std::string(Limits::kFontFamily, 'x') + ", Noto Serif";
    EXPECT_EQ(faceOf(endless.c_str()), "Liberation Sans");
}

TEST(Families, HaveStyles) {
    EXPECT_EQ(faceOf("Noto Serif", {true, false}), "Noto Serif Bold");
    EXPECT_EQ(faceOf("Noto Serif", {false, true}), "Noto Serif Italic");
    EXPECT_EQ(faceOf("Times New Roman", {true, true}), "Liberation Serif Bold Italic");
    EXPECT_EQ(faceOf("Arial", {true, true}), "Liberation Sans Bold Italic");
}

TEST(Families, TellWhereTheyComeFrom) {
    EXPECT_EQ(reportOf("", "Arial").file, "");
    const std::string file = reportOf("", "Noto Serif").file;
    EXPECT_EQ(file.substr(file.rfind('/')), "/NotoSerif-Regular.ttf");
}

TEST(Families, BringMetricsOfTheirOwn) {
    const auto program = systemFontService()->getFont(fontOf("Liberation Mono"));
    const FontMetrics metrics = program->getMetrics();
    EXPECT_EQ(metrics.unitsPerEm, 2048);
    EXPECT_EQ(metrics.ascent, 1705);
    EXPECT_EQ(metrics.descent, 615);
    EXPECT_EQ(program->measureString("iW\u4E2D") - program->measureString("\u4E2D"), 2 * 1229) << "all are as wide";
    EXPECT_EQ(systemFontService()->getFont(fontOf("Noto Serif"))->getMetrics().unitsPerEm, 1000);
}

TEST(Families, GenericOnesTellWhichFontsFillIn) {
    EXPECT_EQ(runsOf(reportOf("\u4E2D", "serif")), "[\u4E2D] Noto Serif CJK SC; ");
    EXPECT_EQ(runsOf(reportOf("\u4E2D", "Arial, serif")), "[\u4E2D] Noto Serif CJK SC; ") << "from the list itself";
    EXPECT_EQ(runsOf(reportOf("\u4E2D", "Times New Roman")), "[\u4E2D] Noto Sans CJK SC; ");
}

TEST(Families, LaterOnesShowWhatTheFirstLacks) {
    EXPECT_EQ(runsOf(reportOf("a\u0645", "Arial, Noto Naskh Arabic")),
              "[a] Liberation Sans; [\u0645] Noto Naskh Arabic; ");
    EXPECT_EQ(runsOf(reportOf("a\u0645", "Arial, Noto Kufi Arabic")),
              "[a] Liberation Sans; [\u0645] Noto Kufi Arabic; ");
}

TEST(Families, OfThousandsOfNamesNoneIsForgotten) {
    const auto first = systemFontService()->getFont(fontOf("Nobody 1"));
    for (int i = 0; i < 3000; ++i) {
        const std::string name = "Nobody " + std::to_string(i) + ", Noto Serif";
        ASSERT_EQ(systemFontService()->getFont(fontOf(name.c_str()))->getMetrics().unitsPerEm, 1000) << name;
    }
    EXPECT_EQ(first->measureString("a"), 1139) << "one that is no longer remembered goes on working";
}

}  // namespace
}  // namespace VEXA::Testing
