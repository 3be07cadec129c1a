#include "vexa/fonts/Bidi.h"

#include "tests/fonts/FontTestTools.h"

namespace VEXA::Testing {
namespace {

// In these texts a, b, c stand for themselves and alef, bet, gimel are from right to left.

std::string levelsOf(std::u32string_view text) {
    std::string levels;
    for (const BidiLevel level : bidiLevels(text)) levels += static_cast<char>('0' + level);
    return levels;
}

TEST(Bidi, LevelsFollowTheLettersAndTheNumbers) {
    struct Case {
        const char* why;
        std::u32string_view text;
        const char* levels;
    };
    const Case cases[] = {
        {"nothing runs from right to left: no work", U"abc 12 \u4E2D", ""},
        {"all from right to left", U"\u05D0\u05D1", "11"},
        {"a number within keeps its direction", U"\u05D0 12 \u05D1", "112211"},
        {"a space at the end belongs to the line", U"\u05D0b ", "121"},
        {"also in a line from left to right", U"a\u05D0 ", "010"},
        {"a Latin word in a Hebrew line", U"\u05D0 bc", "1122"},
        {"a Hebrew word in a Latin line, and the number after it", U"a \u05D0 12", "001122"},
        {"a number before the letters takes the direction of the line", U"12 \u05D0", "2211"},
        {"Arabic figures", U"\u0662\u0660 \u0645", "2211"},
        {"brackets go with what they enclose", U"a (\u05D0)", "00010"},
        {"an override turns Latin letters; it has the level of what is before it", U"a\u202Ebc\u202C", "00110"},
        {"an isolated word does not touch its neighbours", U"\u2067\u05D0\u2069 1", "01000"},
    };
    for (const Case& c : cases) EXPECT_EQ(levelsOf(c.text), c.levels) << c.why;
}

TEST(Bidi, PiecesAreSeenInTheOrderOfTheirLevels) {
    const auto orderOf = [](std::vector<BidiLevel> levels) { return visualOrder(levels); };
    using Order = std::vector<std::uint32_t>;
    EXPECT_EQ(orderOf({}), Order());
    EXPECT_EQ(orderOf({2, 2}), (Order{0, 1}));
    EXPECT_EQ(orderOf({1, 1, 1}), (Order{2, 1, 0}));
    EXPECT_EQ(orderOf({3, 4, 4, 3}), (Order{3, 1, 2, 0}));
    EXPECT_EQ(orderOf({1, 2, 3, 3, 2, 1, 0}), (Order{5, 1, 3, 2, 4, 0, 6}));
}

/// The characters as they are seen from left to right.
std::string seen(std::u32string_view text) {
    std::string result;
    const ShapedText line = shaped(String(text));
    float last = -1;
    for (const GlyphRun& run : line.runs) {
        for (const PlacedGlyph& glyph : run.glyphs) {
            EXPECT_GE(glyph.x, last);
            last = glyph.x;
            appendUtf8(text[glyph.cluster], result);
        }
    }
    EXPECT_LE(last, line.advance);
    return result;
}

TEST(Bidi, GlyphsStandWhereTheyAreSeen) {
    EXPECT_EQ(seen(U"a \u05D0\u05D1 b"), "a \u05D1\u05D0 b");
    EXPECT_EQ(seen(U"\u05D0\u05D1 12 ab"), "ab 12 \u05D1\u05D0");
    EXPECT_EQ(seen(U"a: \u05D0\u05D1 2024 c"), "a: 2024 \u05D1\u05D0 c") << "the number goes with the Hebrew word";
    EXPECT_EQ(seen(U"\u05D0 1,250.5 \u05D1"), "\u05D1 1,250.5 \u05D0");
    EXPECT_EQ(seen(U"\u05D0 (a) \u05D1"), "\u05D1 )a( \u05D0")
        << "in memory; each bracket is drawn as its mirror image";
}

TEST(Bidi, BracketsAreMirroredFromRightToLeft) {
    const ShapedText leftToRight = shaped("()");
    const ShapedText rightToLeft = shaped("\u05D0()\u05D0");
    ASSERT_EQ(rightToLeft.runs.size(), 1U);
    const auto& glyphs = rightToLeft.runs[0].glyphs;
    ASSERT_EQ(glyphs.size(), 4U);
    EXPECT_EQ(glyphs[1].id, leftToRight.runs[0].glyphs[0].id) << "seen from left to right it opens";
    EXPECT_EQ(glyphs[2].id, leftToRight.runs[0].glyphs[1].id);
    EXPECT_TRUE(rightToLeft.runs[0].isRightToLeft);
    EXPECT_FALSE(leftToRight.runs[0].isRightToLeft);
}

}  // namespace
}  // namespace VEXA::Testing
