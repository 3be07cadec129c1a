#include "tests/fonts/FontTestTools.h"

namespace VEXA::Testing {
namespace {

TEST(Fallback, EachPieceComesFromAFontThatHasIt) {
    struct Case {
        const char* why;
        const char* text;
        const char* runs;
    };
    const Case cases[] = {
        {"a line without letters", "12.5 %", "[12.5 %] Liberation Sans; "},
        {"a simple text is one piece, whatever its scripts", "a \u0416 \u03A9", "[a \u0416 \u03A9] Liberation Sans; "},
        {"Chinese", "\u56FE\u8868", "[\u56FE\u8868] Noto Sans CJK SC; "},
        {"Han characters beside kana are Japanese", "\u6F22\u306E",
         "[\u6F22] Noto Sans CJK JP; [\u306E] Noto Sans CJK JP; "},
        {"beside Hangul they are Korean", "\u6F22\uD55C", "[\u6F22] Noto Sans CJK KR; [\uD55C] Noto Sans CJK KR; "},
        {"a space between two words goes with them", "\u56FE \u8868", "[\u56FE \u8868] Noto Sans CJK SC; "},
        {"a space between fonts is the first one's", "\u56FE a", "[\u56FE] Noto Sans CJK SC; [ a] Liberation Sans; "},
        {"Devanagari, vowel signs with their letters", "\u0928\u092E\u0938\u094D\u0924\u0947",
         "[\u0928\u092E\u0938\u094D\u0924\u0947] Noto Sans Devanagari; "},
        {"letters in a row of emoji", "\U0001F600a\U0001F600",
         "[\U0001F600] Noto Color Emoji; [a] Liberation Sans; [\U0001F600] Noto Color Emoji; "},
        {"emoji are one run",
         "\U0001F600\U0001F469\u200D\U0001F467\U0001F1EB\U0001F1F7"
         "1\uFE0F\u20E3",
         "[\U0001F600\U0001F469\u200D\U0001F467\U0001F1EB\U0001F1F7"
         "1\uFE0F\u20E3] Noto Color Emoji; "},
        {"a sign that the first font has, plain and in colour", "\u263A\u263A\uFE0F",
         "[\u263A] Liberation Sans; [\u263A\uFE0F] Noto Color Emoji; "},
        {"beyond 16 bits", "\U00012000", "[\U00012000] Noto Sans Cuneiform; "},
        {"a hyphen that does not break a line is a hyphen", "a\u2011b", "[a\u2011b] Liberation Sans; "},
        {"a wide space is made of a narrow one", "a\u205Fb", "[a\u205Fb] Liberation Sans; "},
        {"a mark that the letter's font lacks comes from another", "a\u0C4Db",
         "[a] Liberation Sans; [\u0C4D] Noto Sans Telugu; [b] Liberation Sans; "},
        {"what has no look is not missing", "a\u2060b\u00AD", "[a\u2060b\u00AD] Liberation Sans; "},
    };
    for (const Case& c : cases) {
        const FontReport report = reportOf(c.text);
        EXPECT_EQ(runsOf(report), c.runs) << c.why;
        EXPECT_EQ(report.missing, U"") << c.why;
    }
}

TEST(Fallback, FollowsFamiliesAndStyle) {
    struct Case {
        const char* why;
        const char* families;
        FontStyleRequest style;
        const char* text;
        const char* runs;
    };
    const Case cases[] = {
        {"bold", "sans-serif", {true, false}, "\u56FE", "[\u56FE] Noto Sans CJK SC Bold; "},
        {"no italic of its own", "Arial", {true, true}, "\u0928", "[\u0928] Noto Sans Devanagari Bold; "},
        {"a generic family", "Arial, serif", {}, "\u4E2D", "[\u4E2D] Noto Serif CJK SC; "},
        {"none, however serif it is", "Times New Roman", {}, "\u4E2D", "[\u4E2D] Noto Sans CJK SC; "},
        {"later families come before the machine's fonts",
         "Arial, Noto Kufi Arabic",
         {},
         "a\u0645",
         "[a] Liberation Sans; [\u0645] Noto Kufi Arabic; "},
    };
    for (const Case& c : cases) EXPECT_EQ(runsOf(reportOf(c.text, c.families, c.style)), c.runs) << c.why;
}

// The font of a character hangs on nothing that was asked before.
TEST(Fallback, IsTheSameInEveryOrder) {
    const std::string alone = runsOf(reportOf("\u2713"));
    reportOf("\u2713\u4E2D\u0645\u2717\U0001F600\u16A0");
    EXPECT_EQ(runsOf(reportOf("\u2713")), alone);
}

TEST(Fallback, ArabicIsOneRunOfJoinedLetters) {
    const FontReport report = reportOf("\u0645\u0628\u064A\u0639\u0627\u062A \u0633\u0646\u0648\u064A\u0629");
    ASSERT_EQ(report.runs.size(), 1U);
    EXPECT_TRUE(report.runs[0].isRightToLeft);
    EXPECT_EQ(report.missing, U"");
    double apart = 0;
    for (const char* letter : {"\u0645", "\u0628", "\u064A"}) apart += reportOf(letter).width;
    EXPECT_LT(reportOf("\u0645\u0628\u064A").width, apart) << "joined letters are narrower";
    const double alone = reportOf("\u0647").width;
    EXPECT_NE(reportOf("\u0647\u200D").width, alone) << "a joiner of another font: the form that joins the next letter";
    EXPECT_EQ(reportOf("\u0647\u200C").width, alone);
}

TEST(Fallback, EmojiOfSeveralCharactersAreOneGlyph) {
    for (const char* text : {"\U0001F469\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466", "\U0001F1EB\U0001F1F7",
                             "1\uFE0F\u20E3", "\U0001F44D\U0001F3FD", "\u2764\uFE0F"}) {
        const ShapedText line = shaped(text);
        ASSERT_EQ(line.runs.size(), 1U) << text;
        EXPECT_EQ(line.runs[0].glyphs.size(), 1U) << text;
        EXPECT_TRUE(line.runs[0].face->isColored()) << text;
    }
}

TEST(Fallback, WhatNoFontHasIsABoxAndIsNoted) {
    FontManager::takeMissing();
    const String text(U"a\uE000b\U000F1234\uE000");
    const ShapedText line = shaped(text);
    EXPECT_EQ(line.missing, U"\uE000\U000F1234") << "each once, in the order of the text";
    EXPECT_EQ(FontManager::takeMissing(), line.missing);
    ASSERT_EQ(line.runs.size(), 1U) << "boxes are the first font's";
    EXPECT_EQ(line.runs[0].glyphs[1].id, 0U);
    const auto program = systemFontService()->getFont(fontOf("sans-serif"));
    for (const char* time : {"first", "second, remembered"}) {
        program->measureString(text);
        EXPECT_EQ(FontManager::takeMissing(), line.missing) << time;
    }
    EXPECT_EQ(shaped(String(U"\u0915\U000F0000")).missing, U"\U000F0000");
    EXPECT_EQ(shaped(String(U"a\uE000\u0C4D")).missing, U"\uE000") << "with a mark that another font has";
    std::u32string thousands;
    for (char32_t c = 0xF0000; c < 0xF1000; ++c) thousands.push_back(c);
    EXPECT_EQ(shaped(String(thousands)).missing.size(), 80U) << "not all are kept";
    FontManager::takeMissing();
}

}  // namespace
}  // namespace VEXA::Testing
