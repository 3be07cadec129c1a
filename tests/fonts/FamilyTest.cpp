#include "tests/fonts/FontTestTools.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

TEST(Families, AreTakenInTurn) {
    const std::string endless = std::string(Limits::kFontFamily, 'x') + ", Noto Serif";
    struct Case {
        const char* why;
        const char* families;
        const char* face;
        FontStyleRequest style = {};
    };
    const Case cases[] = {
        {"built in, whatever the machine has", "Arial, Noto Serif", "Liberation Sans"},
        {"built in, in any case of letters, in all styles", "HELVETICA", "Liberation Sans Bold Italic", {true, true}},
        {"in any case of letters", "noto SERIF", "Noto Serif"},
        {"with or without spaces, as fontconfig compares", "NotoSerif", "Noto Serif"},
        {"bold", "Noto Serif", "Noto Serif Bold", {true, false}},
        {"italic", "Noto Serif", "Noto Serif Italic", {false, true}},
        {"in quotation marks", "'Noto Serif', serif", "Noto Serif"},
        {"unknown ones are passed over", "Nobody Has This, Also Not This, Noto Serif", "Noto Serif"},
        {"what is left is built in", "Nobody Has This", "Liberation Sans"},
        {"by a rule of the machine: of the same widths", "Times New Roman", "Liberation Serif"},
        {"the same for a typewriter face", "Courier New, monospace", "Liberation Mono"},
        {"a member of a larger family", "DejaVu Sans Mono", "DejaVu Sans Mono"},
        {"a family of many languages", "Noto Sans CJK JP", "Noto Sans CJK JP"},
        {"a name too long to be one counts up to its limit", endless.c_str(), "Liberation Sans"},
    };
    for (const Case& c : cases) EXPECT_EQ(faceOf(c.families, c.style), c.face) << c.why;
    EXPECT_TRUE(fileOf("Noto Serif").ends_with("/NotoSerif-Regular.ttf"));
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
