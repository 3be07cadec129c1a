#include "vexa/legend/VexaTextWrapper.h"

#include <limits>

#include "tests/engine/EngineTestTools.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

constexpr auto kSplit = WrapMode::SplitWords;
constexpr auto kKeep = WrapMode::KeepWords;

/// A text on a surface with a font of 10 px, its width in characters of 6 px.
struct Caption {
    Caption(const String& text, float characters, WrapMode mode)
        : wrapper(text, mode, context, characters * 6, {7, 3}) {
        const auto font = make<Font>();
        font->setFontSize(10);
        context.setFont(font);
    }
    VexaRenderContext context{make<NullSurface>(), 800, 600};
    VexaTextWrapper wrapper;
};

/// Lines with a bar between them.
std::string wrapped(const char* text, float characters, WrapMode mode) {
    Caption caption(text, characters, mode);
    std::string lines;
    for (const String& line : caption.wrapper.wrap()) lines += (lines.empty() ? '[' : '|') + line.toUtf8();
    return lines.empty() ? lines : lines + ']';
}

TEST(TextWrapper, BreaksBetweenWordsAndSplitsWhatIsTooLong) {
    const WithFonts fonts(std::make_shared<CountingFonts>());
    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const struct {
        const char* text;
        float characters;
        WrapMode mode;
        const char *lines, *why;
    } cases[] = {
        {"  a  b  ", 8, kSplit, "[  a  b  ]", "what fits is not touched, not even its spaces"},
        {"", 5, kSplit, "[]", "an empty text is one empty line"},
        {"one two three", 8, kSplit, "[one two |three]", "a space with room stays at the end"},
        {"one two three", 7, kSplit, "[one two|three]", "one without is dropped"},
        {"a   b cccc", 4, kSplit, "[a b |cccc]", "of several spaces one is left"},
        {"  aa bbbb", 4, kSplit, "[aa |bbbb]", "none at the start"},
        {"aaaa ", 4, kSplit, "[aaaa|]", "the last space finds no room and opens an empty line"},
        {"a\tb cc", 3, kSplit, "[a\tb|cc]", "every white space ends a word"},
        {"abcdefghij", 4, kSplit, "[abcd|efgh|ij]", "a long word is split between characters"},
        {"abcdef gh i", 4, kSplit, "[abcd|ef |gh i]", "after its end the line goes on"},
        {"ab abcdef", 4, kSplit, "[ab |abcd|ef]", "it starts on a line of its own"},
        {"ab abcdefghij cd", 4, kKeep, "[ab |abcdefghij|cd]", "or overflows, alone on its line"},
        {"a\u00A0b cc", 3, kKeep, "[a\u00A0b|cc]", "a no-break space does not break"},
        {"AV", 2.2F, kSplit, "[AV]", "18 px have no room, their letters' 12 do"},
        {"aaaa W bb", 4, kSplit, "[aaaa]", "a character without room ends it all, the finished lines stay"},
        {"aa W bb", 4, kSplit, "", "the one being built goes"},
        {"aaaaWa bb", 4, kSplit, "[aaaa]", "in what is left of a word too"},
        {"ab", 0, kSplit, "", "no room"},
        {"ab", nan, kSplit, "", "no number"},
        {"ab cd", infinity, kSplit, "[ab cd]", "all the room there is"},
    };
    for (const auto& c : cases) EXPECT_EQ(wrapped(c.text, c.characters, c.mode), c.lines) << c.why;
}

TEST(TextWrapper, TellsWhetherCharactersAreLeftOut) {
    const WithFonts fonts(std::make_shared<CountingFonts>());
    const struct {
        const char* text;
        float characters;
        bool isCut;
        const char* why;
    } cases[] = {
        {"aaaa W bb", 4, true, "all from W on"},
        {"aa W bb", 4, true, "all of it"},
        {"ab", 0, true, "no room"},
        {" \t", 0, false, "but none is needed"},
        {"     ", 4, false, "nor for more of it than a line takes"},
        {"abcdef gh", 4, false, "a split word is whole"},
        {"W", 10, false, "exactly a line"},
    };
    for (const auto& c : cases) {
        Caption caption(c.text, c.characters, kSplit);
        caption.wrapper.wrap();
        EXPECT_EQ(caption.wrapper.isCut(), c.isCut) << c.why;
    }
}

TEST(TextWrapper, LinesAreMeasuredAsTheyStand) {
    const WithFonts fonts;
    Caption caption("one two three", 8, kSplit);
    caption.wrapper.wrap();
    ASSERT_EQ(caption.wrapper.getLineSizes().size(), 2U);
    EXPECT_EQ(caption.wrapper.getLineSizes()[0], (SizeF{48, 10})) << "its space included";
    EXPECT_EQ(caption.wrapper.getLineSizes()[1], (SizeF{30, 10}));
    EXPECT_EQ(caption.wrapper.wrap().size(), 2U) << "wrapping again starts anew";
    caption.context.setFont(nullptr);
    EXPECT_EQ(failureOf([&] { caption.wrapper.wrap(); }),
              "UnreacheableCodeException 2001 VexaRenderContext:172 at 0:0");
}

TEST(TextWrapper, MeasuresEveryCharacterAFewTimesOnly) {
    std::string words;
    for (int i = 0; i < 50'000; ++i) words += "abc ";
    for (const std::string& text : {words, std::string(200'000, 'a')}) {
        const auto counting = std::make_shared<CountingFonts>();
        const WithFonts fonts(counting);
        Caption caption(text, 100, kSplit);
        EXPECT_GE(caption.wrapper.wrap().size(), 2000U);
        EXPECT_LT(counting->measured, 6 * text.size()) << text.substr(0, 5);
    }
}

}  // namespace

TEST(Limits, CaptionLines) {
    const WithFonts fonts;
    std::string words = "abcd";
    for (std::size_t i = 1; i < Limits::kCaptionLines; ++i) words += " abcd";
    for (const bool oneMore : {false, true}) {
        const CapturedLog log;
        Caption caption(oneMore ? words + " abcd" : words, 4, kSplit);
        EXPECT_EQ(caption.wrapper.wrap().size(), Limits::kCaptionLines);
        EXPECT_EQ(caption.wrapper.getLineSizes().size(), Limits::kCaptionLines);
        EXPECT_EQ(log.told(), oneMore ? "34014@7:3" : "");
    }
}

}  // namespace VEXA::Testing
