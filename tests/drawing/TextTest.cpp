#include <gtest/gtest.h>

#include <limits>
#include <thread>
#include <tuple>
#include <utility>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/String.h"
#include "vexa/support/drawing/FontFamilyList.h"
#include "vexa/support/drawing/FontService.h"
#include "vexa/support/drawing/TextDirection.h"

namespace VEXA {
namespace {

int width(const char* text, bool bold = false, bool italic = false) {
    Font font;
    if (bold) font.setFontWeight(DrawingFontWeight::Bold);
    if (italic) font.setFontStyle(DrawingFontStyle::Italic);
    return builtInFontService()->getFont(font)->measureString(text);
}

/// Helvetica's published widths in thousandths of an em: capitals, small letters, both in bold. Slanted text has the
/// same.
constexpr int kHelvetica[4][26] = {{667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833,
                                    722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611},
                                   {556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833,
                                    556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500},
                                   {722, 722, 722, 722, 667, 611, 778, 722, 278, 556, 722, 611, 833,
                                    722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611},
                                   {556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556, 278, 889,
                                    611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500}};

TEST(BuiltInFont, LettersAreAsWideAsHelveticas) {
    for (int i = 0; i < 4 * 26; ++i) {
        const int alphabet = i / 26;
        const char letter[] = {static_cast<char>((alphabet % 2 == 0 ? 'A' : 'a') + i % 26), 0};
        const double units = kHelvetica[alphabet][i % 26] * 2.048;
        EXPECT_NEAR(width(letter, alphabet >= 2), units, 1.1) << letter << ", kept to half a thousandth";
        EXPECT_EQ(width(letter, alphabet >= 2, true), width(letter, alphabet >= 2)) << letter;
    }
}

TEST(BuiltInFont, TextsAreAsWideAsTheirCharacters) {
    const std::tuple<const char*, const char*, int> cases[] = {
        // widths in 1/2048 em
        {"figures are all 1139 wide, so that columns stand straight", "1234567890", 11390},
        {"the ends of ASCII: space 569, tilde 1196", " ~", 569 + 1196},
        // accented letters have their base letter's width: Z 1251, u 1139, r 682, i 455, c 1024, h 1139
        {"Latin letters with accents", "Z\u00fcrich", 1251 + 1139 + 682 + 455 + 1024 + 1139},
        {"the last letter of Latin Extended-A, a long s", "\u017f", 455},
        {"Vietnamese, as wide as its base letter", "\u1ec7", 1139},
        {"Greek, alpha and omega", "\u03b1\u03c9", 1184 + 1599},
        {"dashes, quotation marks", "\u2013\u2014\u2018\u201d", 1139 + 2048 + 455 + 682},
        {"ellipsis; euro as a figure; minus as plus; degree", "\u2026\u20ac\u2212\u00b0", 2048 + 1139 + 1196 + 819},
        {"a no-break space is a space", "\u00a0", 569},
        {"control characters are drawn as spaces: tab, line feed, delete, C1", "\t\n\x7f\u0085", 4 * 569},
        {"combining marks stand on the letter before", "e\u0301\u20d7\ufe20", 1139},
        {"without a look: soft hyphen, zero-width space and joiner, byte order mark", "\u00ad\u200b\u200d\ufeff", 0},
        {"Chinese, Japanese and Korean fill the em", "\u56fe\u30c1\ud55c\U00020000", 4 * 2048},
        {"full-width and half-width forms", "\uff21\uff71", 2048 + 1024},
        {"an emoji and its skin tone; a flag of two letters", "\U0001f44d\U0001f3fd\U0001f1eb\U0001f1f7", 2 * 2048},
        // the mean of the 52 letters: 62138 / 52 = 1194.96
        {"what the table lacks is an average letter: Arabic, Devanagari", "\u0645\u0915", 2 * 1195},
    };
    for (const auto& [why, text, units] : cases) EXPECT_EQ(width(text), units) << why;
    EXPECT_EQ(width("\u0645", true), 1256) << "the average of bold letters is wider: 65314 / 52";
}

TEST(BuiltInFont, ProgramsAreSharedAndAskNothingOfTheSize) {
    const SmartPtr<Font> font = make<Font>();
    const SmartPtr<FontProgram> program = builtInFontService()->getFont(*font);
    EXPECT_EQ(program->getMetrics().unitsPerEm, 2048);
    EXPECT_EQ(program->getMetrics().ascent, 1854);
    EXPECT_EQ(program->getMetrics().descent, 434);
    EXPECT_TRUE(program->isImmortal()) << "asked for at every measured text: no counting, no allocation";
    font->setFontSize(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(builtInFontService()->getFont(*font), program);
}

TEST(FixedWidthFont, EveryCharacterIsAsWide) {
    const SmartPtr<FontProgram> program = fixedWidthFontService(600)->getFont(Font());
    EXPECT_EQ(program->measureString("\u00e9 \U0001f44d"), 1800) << "characters, not bytes";
    const int sum = fixedWidthFontService(2'000'000'000)->getFont(Font())->measureString("ab");
    EXPECT_EQ(sum, std::numeric_limits<int>::max()) << "the sum stays an int";
}

class NoFonts final : public FontService {
    SmartPtr<FontProgram> getFont(const Font&) override { return nullptr; }
};

class FontManagerTest : public testing::Test {
protected:
    ~FontManagerTest() override { FontManager::setService(nullptr); }

    static int measured() { return FontManager::getFont(make<Font>())->measureString("W"); }
};

TEST_F(FontManagerTest, AnInstalledServiceAnswersUntilItIsReplaced) {
    EXPECT_EQ(measured(), 1933) << "the default service is there from the start";
    const auto fixed = fixedWidthFontService(600);
    EXPECT_EQ(FontManager::setService(fixed), defaultFontService());
    EXPECT_EQ(measured(), 600);
    EXPECT_EQ(FontManager::setService(std::make_shared<NoFonts>()), fixed);
    EXPECT_TRUE(FontManager::getFont(make<Font>()).isEmpty()) << "a service may have no program";
    FontManager::setService(nullptr);
    EXPECT_EQ(measured(), 1933);
    EXPECT_THROW(FontManager::getFont(nullptr), NullPointerException);
}

TEST_F(FontManagerTest, AChangeIsSeenByThreadsThatMeasuredBefore) {
    std::thread([] {
        EXPECT_EQ(measured(), 1933);
        std::thread([] { FontManager::setService(fixedWidthFontService(700)); }).join();
        EXPECT_EQ(measured(), 700);
    }).join();
}

std::string namesOf(const String& text) {
    std::string names;
    FontFamilyList list(text.view());
    while (const auto name = list.next()) names += "[" + String(*name).toUtf8() + "]";
    return names;
}

TEST(FontFamilyList, NamesStandBetweenCommasAndGenericOnesAreKeywords) {
    const std::pair<const char*, const char*> cases[] = {
        {" , ,, ", ""},
        {"  Noto Sans ,serif", "[Noto Sans][serif]"},
        {"'Fira, Mono', \"It's\"", "[Fira, Mono][It's]"},
        {"'open, serif", "[open, serif]"},
        {"'a' stray, b", "[a][b]"},
        {"'', \" \", c", "[c]"},
        {"\u5FAE\u8F6F\u96C5\u9ED1, Arial", "[\u5FAE\u8F6F\u96C5\u9ED1][Arial]"},
    };
    for (const auto& [text, names] : cases) EXPECT_EQ(namesOf(text), names) << text;
    const std::string manyNames = std::string(995, 'a') + ",bcdefghi";
    EXPECT_EQ(namesOf(manyNames), "[" + std::string(995, 'a') + "][bcde]") << "1,000 characters count";
    EXPECT_EQ(genericFamily(U"SANS-Serif"), "sans-serif");
    EXPECT_EQ(genericFamily(U"system-ui"), "system-ui");
    EXPECT_EQ(genericFamily(U"serif2"), std::nullopt);
}

TEST(TextDirection, TheFirstLetterTells) {
    const std::tuple<const char*, std::u32string_view, bool> cases[] = {
        {"nothing to tell", U"", false},
        {"digits and signs alone", U"12.5 % (+)", false},
        {"Hebrew", U"\u05D0", true},
        {"Arabic", U"\u0645", true},
        {"Adlam, beyond 16 bits", U"\U0001E900", true},
        {"Phoenician, historic", U"\U00010900", true},
        {"presentation forms", U"\uFB2A", true},
        {"the ends of the Latin letters", U"(Z\u05D0", false},
        {"Devanagari runs from left to right", U"\u0915\u05D0", false},
        {"ideographs beyond 16 bits", U"\U00020000\u05D0", false},
        {"spaces, figures and signs are passed over", U" 2024: \u20AC \u2192 \u05D0 a", true},
        {"Arabic figures as well", U"\u0662\u0660 Sales \u0645", false},
        {"emoji as well", U"\U0001F600\u05D0", true},
        {"the marks of direction count", U"\u200F abc", true},
        {"from left to right", U"\u200E \u05D0", false},
        {"what is isolated does not count", U"\u2068abc\u2069 \u05D0", true},
        {"nor in two layers", U"\u2067\u2066a\u2069b\u2069 \u05D0", true},
        {"nor without an end", U"\u2068\u05D0", false},
        {"an end without a beginning is nothing", U"\u2069\u05D0", true},
        {"a multiplication sign stands among the letters of Latin-1", U"\u00D7\u05D0", true},
        {"no character at all", U"\U0010FFFF\u05D0", true},
    };
    for (const auto& [why, text, isToTheLeft] : cases) EXPECT_EQ(isRightToLeft(text), isToTheLeft) << why;
}

}  // namespace
}  // namespace VEXA
