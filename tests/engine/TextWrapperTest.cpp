#include <gtest/gtest.h>

#include <limits>

#include "tests/engine/EngineTestTools.h"
#include "vexa/legend/VexaTextWrapper.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/values/ParseUtil.h"
#include "vexa/surfaces/NullSurface.h"

namespace VEXA {
namespace {

using namespace Testing;

constexpr float kCharacter = 6;  // px, of a fixed-width font of 10 px

/// A surface with a font of 10 px.
class Page {
public:
    Page() {
        const auto font = make<Font>();
        font->setFontSize(10);
        context.setFont(font);
    }
    VexaRenderContext context{make<NullSurface>(), 800, 600};
};

/// Lines with a bar between them.
std::string joined(const Vector<String>& lines) {
    std::string text;
    for (const String& line : lines) {
        text += text.empty() ? '[' : '|';
        line.appendUtf8To(text);
    }
    if (!text.empty()) text += ']';
    return text;
}

std::string wrapped(const char* text, float width, WrapMode mode) {
    Page page;
    return joined(VexaTextWrapper(text, mode, page.context, width).wrap());
}

/// Measures like the fixed-width fonts, W being ten times as wide; counts the characters that it is asked for.
class CountingFonts final : public FontService {
public:
    class Program final : public FontProgram {
    public:
        explicit Program(std::size_t& measured) : measured_(measured) {}
        FontMetrics getMetrics() const noexcept override { return {1000, 800, 200}; }
        int measureString(const String& text) const override {
            int width = 0;
            for (const char32_t c : text.view()) width += c == U'W' ? 6000 : 600;
            measured_ += text.length();
            return width;
        }

    private:
        std::size_t& measured_;
    };
    SmartPtr<FontProgram> getFont(const Font&) override { return make<Program>(measured); }
    std::size_t measured = 0;
};

/// Installs the counting fonts for a test.
class WithCountingFonts {
public:
    WithCountingFonts() : previous_(FontManager::setService(fonts)) {}
    ~WithCountingFonts() { FontManager::setService(std::move(previous_)); }
    std::shared_ptr<CountingFonts> fonts = std::make_shared<CountingFonts>();

private:
    std::shared_ptr<FontService> previous_;
};

TEST(TextWrapper, BreaksBetweenWordsAndSplitsWhatIsTooLong) {
    const FixedWidthFonts fonts;
    constexpr auto kSplit = WrapMode::SplitWords;
    constexpr auto kKeep = WrapMode::KeepWords;
    const struct {
        const char* text;
        float characters;
        WrapMode mode;
        const char* lines;
        const char* why;
    } cases[] = {
        {"one two", 7, kSplit, "[one two]", "what fits is not touched"},
        {"  a  b  ", 8, kSplit, "[  a  b  ]", "not even its spaces"},
        {"", 5, kSplit, "[]", "an empty text is one empty line"},
        {"one two three", 8, kSplit, "[one two |three]", "a space with room stays at the end"},
        {"one two three", 7, kSplit, "[one two|three]", "one without is dropped"},
        {"a   b cccc", 4, kSplit, "[a b |cccc]", "of several spaces one is left"},
        {"  aa bbbb", 4, kSplit, "[aa |bbbb]", "none at the start"},
        {"aaaa ", 4, kSplit, "[aaaa|]", "the last space finds no room and opens an empty line"},
        {"a\tb cc", 3, kSplit, "[a\tb|cc]", "every white space ends a word"},
        {"abcdefghij", 4, kSplit, "[abcd|efgh|ij]", "a long word is split between characters"},
        {"abcdefgh", 4, kSplit, "[abcd|efgh]", "its end may fill a line"},
        {"abcdef gh i", 4, kSplit, "[abcd|ef |gh i]", "after its end the line goes on"},
        {"ab abcdef", 4, kSplit, "[ab |abcd|ef]", "it starts on a line of its own"},
        {"abcdefghij", 4, kKeep, "[abcdefghij]", "or it overflows"},
        {"ab abcdefghij cd", 4, kKeep, "[ab |abcdefghij|cd]", "alone on its line"},
        {"a\xC2\xA0"
         "b cc",
         3, kKeep,
         "[a\xC2\xA0"
         "b|cc]",
         "a no-break space does not break"},
    };
    for (const auto& c : cases) EXPECT_EQ(wrapped(c.text, c.characters * kCharacter, c.mode), c.lines) << c.why;
}

TEST(TextWrapper, WidthsWithoutRoomGiveNoLines) {
    const FixedWidthFonts fonts;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float width : {0.0F, -1.0F, nan}) EXPECT_EQ(wrapped("ab", width, WrapMode::SplitWords), "") << width;
    EXPECT_EQ(wrapped("ab cd", kCharacter / 2, WrapMode::SplitWords), "") << "narrower than any character";
    EXPECT_EQ(wrapped("ab cd", std::numeric_limits<float>::infinity(), WrapMode::SplitWords), "[ab cd]");
}

TEST(TextWrapper, EndsBeforeAWordWhoseFirstCharacterHasNoRoom) {
    const WithCountingFonts fonts;
    EXPECT_EQ(wrapped("aaaa W bb", 4 * kCharacter, WrapMode::SplitWords), "[aaaa]") << "the finished lines stay";
    EXPECT_EQ(wrapped("aa W bb", 4 * kCharacter, WrapMode::SplitWords), "") << "the one being built goes";
    EXPECT_EQ(wrapped("aaaa W bb", 4 * kCharacter, WrapMode::KeepWords), "[aaaa]") << "in both modes";
    EXPECT_EQ(wrapped("aaaaWa bb", 4 * kCharacter, WrapMode::SplitWords), "[aaaa]") << "in what is left of a word too";
}

TEST(TextWrapper, LinesAreMeasuredAsTheyStand) {
    const FixedWidthFonts fonts;
    Page page;
    VexaTextWrapper wrapper("one two three", WrapMode::SplitWords, page.context, 8 * kCharacter);
    wrapper.wrap();
    ASSERT_EQ(wrapper.getLineSizes().size(), 2U);
    EXPECT_EQ(wrapper.getLineSizes()[0], (SizeF{48, 10})) << "its space included";
    EXPECT_EQ(wrapper.getLineSizes()[1], (SizeF{30, 10}));
    EXPECT_EQ(wrapper.wrap().size(), 2U) << "wrapping again starts anew";
}

TEST(TextWrapper, NeedsAFont) {
    VexaRenderContext context(make<NullSurface>(), 800, 600);
    VexaTextWrapper wrapper("text", WrapMode::SplitWords, context, 100);
    EXPECT_EQ(failureOf([&] { wrapper.wrap(); }), "UnreacheableCodeException 2001 VexaRenderContext:172 at 0:0");
}

TEST(TextWrapper, MeasuresEveryCharacterAFewTimesOnly) {
    std::string words;
    for (int i = 0; i < 50'000; ++i) words += "abc ";
    const struct {
        std::string text;
        const char* why;
    } cases[] = {
        {std::string(200'000, 'a'), "one word of 200,000 letters"},
        {words, "many short words"},
    };
    for (const auto& c : cases) {
        const WithCountingFonts counting;
        Page page;
        VexaTextWrapper wrapper(c.text, WrapMode::SplitWords, page.context, 100 * kCharacter);
        EXPECT_GE(wrapper.wrap().size(), 2000U) << c.why;
        EXPECT_LT(counting.fonts->measured, 6 * c.text.size()) << c.why;
    }
}

TEST(TextWrapper, WordsAreWhatStandsBetweenWhiteSpace) {
    const String text(" \t one\ntwo\xC2\xA0three  ");
    std::size_t position = 0;
    EXPECT_EQ(ParseUtil::extractWord(text, position), U"one");
    EXPECT_EQ(position, 6U);
    EXPECT_EQ(ParseUtil::extractWord(text, position), U"two\u00A0three") << "a no-break space joins";
    EXPECT_EQ(ParseUtil::extractWord(text, position), U"") << "only white space is left";
    EXPECT_EQ(position, text.length());
    EXPECT_EQ(ParseUtil::extractWord(text, position), U"") << "at the end";
    EXPECT_EQ(ParseUtil::extractWord(String(), position = 0), U"") << "an empty text";
}

}  // namespace

TEST(Limits, CaptionLines) {
    const Testing::FixedWidthFonts fonts;
    std::string words;
    for (std::size_t i = 0; i < Limits::kCaptionLines; ++i) words += "abcd ";
    words.pop_back();
    for (const bool oneMore : {false, true}) {
        Page page;
        const Testing::CapturedLog log;
        VexaTextWrapper wrapper(oneMore ? words + " abcd" : words, WrapMode::SplitWords, page.context, 4 * kCharacter,
                                {7, 3});
        EXPECT_EQ(wrapper.wrap().size(), Limits::kCaptionLines);
        EXPECT_EQ(wrapper.getLineSizes().size(), Limits::kCaptionLines);
        ASSERT_EQ(log.codes(), oneMore ? "34014" : "");
        for (const LogRecord& record : log.records) EXPECT_EQ(record.place, (SourcePlace{7, 3}));
    }
}

}  // namespace VEXA
