#include "vexa/support/drawing/FontService.h"

#include <gtest/gtest.h>

#include <limits>
#include <thread>

#include "vexa/support/core/Exception.h"

namespace VEXA {
namespace {

SmartPtr<Font> fontOf(bool bold, bool italic) {
    const SmartPtr<Font> font = make<Font>();
    if (bold) font->setFontWeight(DrawingFontWeight::Bold);
    if (italic) font->setFontStyle(DrawingFontStyle::Italic);
    return font;
}

int width(const char* text, bool bold = false, bool italic = false) {
    return builtInFontService()->getFont(*fontOf(bold, italic))->measureString(text);
}

/// Helvetica's published widths in thousandths of an em, which the font keeps to half a unit. Slanted text has the
/// same.
constexpr int kUpperCase[26] = {667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833,
                                722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611};
constexpr int kLowerCase[26] = {556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833,
                                556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500};
constexpr int kBoldUpperCase[26] = {722, 722, 722, 722, 667, 611, 778, 722, 278, 556, 722, 611, 833,
                                    722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611};
constexpr int kBoldLowerCase[26] = {556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556, 278, 889,
                                    611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500};

constexpr double kUnitsPerThousandth = 2.048;

TEST(BuiltInFont, LettersAreAsWideAsHelveticas) {
    for (int i = 0; i < 26; ++i) {
        const char upper[] = {static_cast<char>('A' + i), 0};
        const char lower[] = {static_cast<char>('a' + i), 0};
        for (const bool italic : {false, true}) {
            EXPECT_NEAR(width(upper, false, italic), kUpperCase[i] * kUnitsPerThousandth, 1.1) << upper;
            EXPECT_NEAR(width(lower, false, italic), kLowerCase[i] * kUnitsPerThousandth, 1.1) << lower;
            EXPECT_NEAR(width(upper, true, italic), kBoldUpperCase[i] * kUnitsPerThousandth, 1.1) << upper;
            EXPECT_NEAR(width(lower, true, italic), kBoldLowerCase[i] * kUnitsPerThousandth, 1.1) << lower;
        }
    }
}

struct WidthCase {
    const char* why;
    const char* text;
    int units;  ///< 1/2048 em
};

class BuiltInWidths : public testing::TestWithParam<WidthCase> {};

TEST_P(BuiltInWidths, AreTheSumOfTheFontsTable) {
    EXPECT_EQ(width(GetParam().text), GetParam().units) << GetParam().why;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BuiltInWidths,
    testing::Values(
        WidthCase{"no characters", "", 0},
        // T 1251, o 1139, t 569, a 1139, l 455
        WidthCase{"a word", "Total", 4553},
        WidthCase{"figures are all 1139 wide, so that columns stand straight", "1234567890", 11390},
        // 1 1139, space 569, 2 1139, . 569, 5 1139, % 1821
        WidthCase{"the first and last printable rows of ASCII, blanks counted", "1 2.5%", 6376},
        WidthCase{"the ends of ASCII: space 569, tilde 1196", " ~", 569 + 1196},
        // accented letters have their base letter's width: Z 1251, u 1139, r 682, i 455, c 1024, h 1139
        WidthCase{"Latin letters with accents", "Z\u00fcrich", 1251 + 1139 + 682 + 455 + 1024 + 1139},
        WidthCase{"the last letter of Latin Extended-A, a long s", "\u017f", 455},
        WidthCase{"Romanian s with comma, as wide as s", "\u0219", 1024},
        WidthCase{"Vietnamese, as wide as its base letter", "\u1ec7", 1139},
        WidthCase{"Greek, alpha and omega", "\u03b1\u03c9", 1184 + 1599},
        WidthCase{"en and em dash", "\u2013\u2014", 1139 + 2048},
        WidthCase{"quotation marks 455 and 682", "\u2018\u201d", 455 + 682},
        WidthCase{"bullet, ellipsis", "\u2022\u2026", 717 + 2048},
        WidthCase{"euro as a figure, per mille a whole em", "\u20ac\u2030", 1139 + 2048},
        WidthCase{"minus as plus; degree", "\u2212+\u00b0", 1196 + 1196 + 819},
        WidthCase{"trade mark, arrow", "\u2122\u2192", 2048 + 2048},
        WidthCase{"a no-break space is a space", "\u00a0", 569},
        WidthCase{"control characters are drawn as spaces: tab, line feed, delete, C1", "\t\n\x7f\u0085", 4 * 569},
        WidthCase{"combining marks stand on the letter before", "e\u0301\u20d7\ufe20", 1139},
        WidthCase{"characters without a look: soft hyphen, zero-width space and joiner, byte order mark",
                  "\u00ad\u200b\u200d\ufeff", 0},
        WidthCase{"Chinese, Japanese and Korean fill the em", "\u56fe\u30c1\ud55c\U00020000", 4 * 2048},
        WidthCase{"full-width and half-width forms", "\uff21\uff71", 2048 + 1024},
        WidthCase{"an emoji and its skin tone", "\U0001f44d\U0001f3fd", 2048},
        WidthCase{"a flag of two letters", "\U0001f1eb\U0001f1f7", 2048},
        // the mean of the 52 letters: 62138 / 52 = 1194.96
        WidthCase{"what the table lacks is an average letter: Arabic, Devanagari", "\u0645\u0915", 2 * 1195}));

TEST(BuiltInFont, TheAverageOfBoldLettersIsWider) { EXPECT_EQ(width("\u0645", true), 1256) << "65314 / 52"; }

TEST(BuiltInFont, MetricsAreThoseOfTheFont) {
    const FontMetrics metrics = builtInFontService()->getFont(*fontOf(false, false))->getMetrics();
    EXPECT_EQ(metrics.unitsPerEm, 2048);
    EXPECT_EQ(metrics.ascent, 1854);
    EXPECT_EQ(metrics.descent, 434);
}

TEST(BuiltInFont, ProgramsAreSharedAndAskNothingOfTheSize) {
    const SmartPtr<Font> font = fontOf(false, false);
    const SmartPtr<FontProgram> program = builtInFontService()->getFont(*font);
    EXPECT_TRUE(program->isImmortal()) << "asked for at every measured text: no counting, no allocation";
    for (const float size : {0.0F, -5.0F, std::numeric_limits<float>::quiet_NaN()}) {
        font->setFontSize(size);
        EXPECT_EQ(builtInFontService()->getFont(*font), program);
    }
}

TEST(FixedWidthFont, EveryCharacterIsAsWide) {
    const SmartPtr<FontProgram> program = fixedWidthFontService(600)->getFont(Font());
    EXPECT_EQ(program->measureString("abc"), 1800);
    EXPECT_EQ(program->measureString("\u00e9 \U0001f44d"), 1800) << "characters, not bytes";
    EXPECT_EQ(program->measureString(""), 0);
    EXPECT_EQ(program->getMetrics().unitsPerEm, 1000);
    EXPECT_EQ(program->getMetrics().ascent, 800);
    EXPECT_EQ(program->getMetrics().descent, 200);
}

TEST(FixedWidthFont, TheSumStaysAnInt) {
    const SmartPtr<FontProgram> program = fixedWidthFontService(2'000'000'000)->getFont(Font());
    EXPECT_EQ(program->measureString("ab"), std::numeric_limits<int>::max());
}

class FontManagerTest : public testing::Test {
protected:
    ~FontManagerTest() override { FontManager::setService(nullptr); }

    static int measured() { return FontManager::getFont(make<Font>())->measureString("W"); }
};

TEST_F(FontManagerTest, TheBuiltInServiceIsThereFromTheStart) { EXPECT_EQ(measured(), 1933); }

TEST_F(FontManagerTest, AnInstalledServiceAnswersUntilItIsReplaced) {
    const auto fixed = fixedWidthFontService(600);
    EXPECT_EQ(FontManager::setService(fixed), builtInFontService());
    EXPECT_EQ(measured(), 600);
    EXPECT_EQ(FontManager::setService(nullptr), fixed);
    EXPECT_EQ(measured(), 1933);
}

TEST_F(FontManagerTest, AChangeIsSeenByThreadsThatMeasuredBefore) {
    int before = 0;
    int after = 0;
    std::thread([&] {
        before = measured();
        std::thread([] { FontManager::setService(fixedWidthFontService(700)); }).join();
        after = measured();
    }).join();
    EXPECT_EQ(before, 1933);
    EXPECT_EQ(after, 700);
}

TEST_F(FontManagerTest, NoFontIsAnError) { EXPECT_THROW(FontManager::getFont(nullptr), NullPointerException); }

class NoFonts final : public FontService {
    SmartPtr<FontProgram> getFont(const Font&) override { return nullptr; }
};

TEST_F(FontManagerTest, AServiceMayHaveNoProgram) {
    FontManager::setService(std::make_shared<NoFonts>());
    EXPECT_TRUE(FontManager::getFont(make<Font>()).isEmpty());
}

}  // namespace
}  // namespace VEXA
