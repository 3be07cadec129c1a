#include "vexa/support/core/String.h"

#include <gtest/gtest.h>

#include <thread>
#include <unordered_set>

namespace VEXA {
namespace {

using namespace std::string_literals;

std::u32string decoded(const std::string& bytes) { return std::u32string(String(bytes).view()); }

TEST(String, DecodesUtf8Strictly) {
    struct Case {
        std::string bytes;
        std::u32string expected;
        const char* why;
    };
    const Case cases[] = {
        {"abcdefghij", U"abcdefghij", "longer than a machine word, ASCII only"},
        {"abcdefgh\xC3\xA4", U"abcdefgh\u00E4", "the first byte that is not ASCII stands behind a whole word"},
        {"a\0b"s, U"a\0b"s, "NUL is a character like any other"},
        {"\x01\x1B", U"\x01\x1B", "controls are kept; surfaces deal with them"},
        {"\xC2\x80\xDF\xBF", U"\u0080\u07FF", "first and last of two bytes"},
        {"\xE0\xA0\x80\xEF\xBF\xBF", U"\u0800\uFFFF", "first and last of three bytes"},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", U"\U00010000\U0010FFFF", "first and last of four bytes"},
        {"\xED\x9F\xBF\xEE\x80\x80", U"\uD7FF\uE000", "the neighbours of the surrogates"},
        {"\xC0\x80", U"\uFFFD\uFFFD", "overlong NUL; no byte of it can start anything"},
        {"\xC1\xBF", U"\uFFFD\uFFFD", "overlong DEL"},
        {"\xE0\x9F\xBF", U"\uFFFD\uFFFD\uFFFD", "overlong in three bytes"},
        {"\xF0\x8F\xBF\xBF", U"\uFFFD\uFFFD\uFFFD\uFFFD", "overlong in four bytes"},
        {"\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD", "a high surrogate"},
        {"\xED\xBF\xBF", U"\uFFFD\uFFFD\uFFFD", "a low surrogate"},
        {"\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD", "110000 is beyond the last code point"},
        {"\xF5\x80\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD", "a lead byte of 140000 and more"},
        {"\xFF\xFE", U"\uFFFD\uFFFD", "a UTF-16 mark"},
        {"\x80 \xBF", U"\uFFFD \uFFFD", "continuation bytes alone"},
        {"\xC3", U"\uFFFD", "cut after one of two"},
        {"\xE2\x82", U"\uFFFD", "cut after two of three: one piece, one mark"},
        {"\xF0\x9F\x98", U"\uFFFD", "cut after three of four"},
        {"\xF0\x9F\x98x", U"\uFFFDx", "the byte that breaks a sequence is read again"},
        {"\xE2\xE2\x82\xAC", U"\uFFFD\u20AC", "and may start the next one"},
        {"a\xF1\x80\x80\xE1\x80\xC2"
         "b\x80"
         "c\x80\xBF"
         "d",
         U"a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd", "three truncated sequences in a row, then stray bytes"},
    };
    for (const Case& c : cases) EXPECT_EQ(decoded(c.bytes), c.expected) << c.why;
}

TEST(String, WritesUtf8AsItWasRead) {
    struct Case {
        std::u32string characters;
        std::string expected;
        const char* why;
    };
    const Case cases[] = {
        {U"\x7F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF",
         "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", "the ends of every length"},
        {{0xD800}, "\xEF\xBF\xBD", "a surrogate is no character"},
        {{0x110000}, "\xEF\xBF\xBD", "beyond the last code point"},
        {{0xFFFFFFFF}, "\xEF\xBF\xBD", "far beyond it"},
        {U"a\0b"s, "a\0b"s, "NUL does not end a text"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(String(c.characters).toUtf8(), c.expected) << c.why;
        std::string single = "<";
        for (const char32_t character : c.characters) appendUtf8(character, single);
        EXPECT_EQ(single, "<" + c.expected) << c.why;
    }
    std::string out = "x: ";
    String("\xC3\xA4").appendUtf8To(out);
    EXPECT_EQ(out, "x: \xC3\xA4") << "appends, and keeps what was there";
}

TEST(String, ComparesByCodePoint) {
    struct Case {
        const char* a;
        const char* b;
        int expected;
        const char* why;
    };
    const Case cases[] = {
        {"", "", 0, "empty texts are equal however they were made"},
        {"", "a", -1, "the empty text comes first"},
        {"ab", "abc", -1, "a prefix comes first"},
        {"b", "abc", 1, "the first difference decides, not the length"},
        {"Z", "a", -1, "case counts"},
        {"\xEF\xBF\xBD", "\xF0\x9F\x98\x80", -1, "UTF-16 units would order these the other way"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(String(c.a).compare(c.b), c.expected) << c.why;
        EXPECT_EQ(String(c.b).compare(c.a), -c.expected) << c.why;
        EXPECT_EQ(String(c.a) == String(c.b), c.expected == 0) << c.why;
        EXPECT_EQ(String(c.a) < String(c.b), c.expected < 0) << c.why;
    }
    EXPECT_EQ((std::unordered_set<String>{"a", "b", "a", ""}).size(), 3U);
}

TEST(String, FindsAndCuts) {
    const String text("th:. th:x");
    EXPECT_EQ(text.find("th:"), 0U);
    EXPECT_EQ(text.find("th:", 1), 5U);
    EXPECT_EQ(text.find("th:", 6), String::npos);
    EXPECT_EQ(text.find("x", 100), String::npos) << "from beyond the end";
    EXPECT_EQ(text.substringBefore(" "), String("th:."));
    EXPECT_EQ(text.substringAfter("th:"), String(". th:x")) << "after the first of two";
    EXPECT_TRUE(text.substringBefore("dec:").isEmpty() && text.substringAfter("dec:").isEmpty()) << "without a marker";
    EXPECT_TRUE(text.substringAfter("x").isEmpty()) << "marker at the end";
    EXPECT_EQ(text.subString(5), String("th:x"));
    EXPECT_EQ(text.subString(3, 1), String("."));
    EXPECT_EQ(text.subString(8, String::npos), String("x")) << "start + count must not overflow";
    EXPECT_TRUE(text.subString(9).isEmpty() && text.subString(100, 3).isEmpty());
    EXPECT_TRUE(text.startsWith("th:.") && text.startsWith("") && !text.startsWith("th:. th:xx"));
}

TEST(String, Trims) {
    EXPECT_EQ(String(" \t\r\n a b \n").trim(), String("a b"));
    EXPECT_EQ(String("\xE3\x80\x80x\xE2\x80\x83").trim(), String("x")) << "ideographic space, em space";
    EXPECT_EQ(String("\xC2\xA0x\xE2\x80\xAF").trim().length(), 3U) << "no-break spaces stand for themselves";
    EXPECT_TRUE(String(" \t ").trim().isEmpty());
    EXPECT_FALSE(String::isSpace(U'\u2007')) << "figure space: no line break inside a number";
}

TEST(String, ReplacesAll) {
    struct Case {
        const char* text;
        const char* what;
        const char* with;
        const char* expected;
        const char* why;
    };
    const Case cases[] = {
        {"a.b.c", ".", ", ", "a, b, c", "longer than what it replaces"},
        {"aaaa", "aa", "a", "aa", "goes on behind what it replaced: no overlap, no second look"},
        {"aXa", "a", "", "X", "at both ends, by nothing"},
        {"abc", "", "-", "abc", "nothing to look for"},
        {"abc", "x", "-", "abc", "does not occur"},
    };
    for (const Case& c : cases) EXPECT_EQ(String(c.text).replaceAll(c.what, c.with).toUtf8(), c.expected) << c.why;
}

TEST(String, Concatenates) {
    EXPECT_EQ(String("a") + String("\xC3\xA4") + String(), String("a\xC3\xA4"));
    EXPECT_EQ(String() + String("b"), String("b"));
    EXPECT_TRUE((String() + String()).isEmpty());
}

TEST(String, OwnsItsTextAlone) {
    String a("shared");
    String b = a;
    a = String("other");
    EXPECT_EQ(b, String("shared")) << "the copy does not follow the original";
    const String& alias = b;
    b = alias;
    EXPECT_EQ(b, String("shared")) << "assigned to itself";
    const String c = std::move(b);
    b = c;
    EXPECT_EQ(b, c) << "a moved-from text can be used again";
}

TEST(String, CountsOwnersAcrossThreads) {
    const String shared("freed once, by the last of its owners");
    const auto copyOften = [&shared] {
        for (int i = 0; i < 20'000; ++i) EXPECT_EQ(String(shared).length(), 37U);
    };
    std::thread other(copyOften);
    copyOften();
    other.join();
    EXPECT_EQ(shared.view().substr(0, 5), U"freed");
}

constinit StaticStringData<2> twoLetters{{StringData::kImmortal, 2}, {U'o', U'k'}};

TEST(String, LeavesStaticTextsUncounted) {
    {
        const String text(&twoLetters.header);
        String copy = text;
        copy = copy + String("!");
        EXPECT_EQ(copy, String("ok!"));
        EXPECT_EQ(text, String("ok"));
    }
    EXPECT_EQ(twoLetters.header.references.load(), StringData::kImmortal);
}

}  // namespace
}  // namespace VEXA
