#include "vexa/support/core/String.h"

#include <gtest/gtest.h>

#include <tuple>
#include <unordered_set>

namespace VEXA {
namespace {

using namespace std::string_literals;

TEST(String, DecodesUtf8Strictly) {
    const std::tuple<std::string, std::u32string, const char*> cases[] = {
        {"abcdefgh\xC3\xA4", U"abcdefgh\u00E4", "the first byte that is not ASCII stands behind a whole word"},
        {"a\0b\x1B"s, U"a\0b\x1B"s, "NUL and controls are characters like any other; surfaces deal with them"},
        {"\xC2\x80\xDF\xBF", U"\u0080\u07FF", "first and last of two bytes"},
        {"\xE0\xA0\x80\xEF\xBF\xBF", U"\u0800\uFFFF", "first and last of three bytes"},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", U"\U00010000\U0010FFFF", "first and last of four bytes"},
        {"\xED\x9F\xBF\xEE\x80\x80", U"\uD7FF\uE000", "the neighbours of the surrogates"},
        {"\xC1\xBF", U"\uFFFD\uFFFD", "overlong DEL; no byte of it can start anything"},
        {"\xE0\x9F\xBF", U"\uFFFD\uFFFD\uFFFD", "overlong in three bytes"},
        {"\xF0\x8F\xBF\xBF", U"\uFFFD\uFFFD\uFFFD\uFFFD", "overlong in four bytes"},
        {"\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD", "a high surrogate"},
        {"\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD", "110000 is beyond the last code point"},
        {"\xF5\x80\xFF", U"\uFFFD\uFFFD\uFFFD", "bytes that are never used, with a continuation between them"},
        {"\x80 \xBF", U"\uFFFD \uFFFD", "continuation bytes alone"},
        {"\xE2\x82", U"\uFFFD", "cut after two of three: one piece, one mark"},
        {"\xF0\x9F\x98\xE2\x82\xAC", U"\uFFFD\u20AC", "the byte that breaks a sequence may start the next one"},
    };
    for (const auto& [bytes, expected, why] : cases) EXPECT_EQ(String(bytes).view(), expected) << why;
}

TEST(String, WritesUtf8AsItWasRead) {
    std::u32string characters = U"\0\x7F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"s;
    std::string expected = "\0\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"s;
    for (const char32_t none : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
        characters += none;
        expected += "\xEF\xBF\xBD";
    }
    EXPECT_EQ(String(characters).toUtf8(), expected);
    std::string out = "kept";
    for (const char32_t character : characters) appendUtf8(character, out);
    String("\xC3\xA4").appendUtf8To(out);
    EXPECT_EQ(out, "kept" + expected + "\xC3\xA4");
}

TEST(String, OrdersByCodePoint) {
    // a prefix first, else by the first difference; UTF-16 units would order the last two the other way
    const char* const ascending[] = {"", "Z", "ab", "abc", "b", "\xEF\xBF\xBD", "\xF0\x9F\x98\x80"};
    for (const char* const& a : ascending) {
        for (const char* const& b : ascending) {
            EXPECT_EQ(String(a).compare(b), (&a > &b) - (&a < &b)) << a << ' ' << b;
            EXPECT_EQ(String(a) == String(b), &a == &b) << a << ' ' << b;
            EXPECT_EQ(String(a) < String(b), &a < &b) << a << ' ' << b;
        }
    }
    EXPECT_EQ((std::unordered_set<String>{"a", "b", "a", ""}).size(), 3U);
}

TEST(String, FindsAndCuts) {
    const String text("th:. th:x");
    EXPECT_EQ(text.find("th:", 1), 5U);
    EXPECT_EQ(text.find("th:", 6), String::npos);
    EXPECT_EQ(text.find("x", 100), String::npos) << "from beyond the end";
    EXPECT_EQ(text.substringBefore(" "), String("th:."));
    EXPECT_EQ(text.substringAfter("th:"), String(". th:x")) << "after the first of two";
    EXPECT_TRUE(text.substringBefore("dec:").isEmpty() && text.substringAfter("dec:").isEmpty()) << "without a marker";
    EXPECT_EQ(text.subString(3, 1), String("."));
    EXPECT_EQ(text.subString(8, String::npos), String("x")) << "start + count must not overflow";
    EXPECT_TRUE(text.subString(9).isEmpty() && text.subString(100, 3).isEmpty());
    EXPECT_TRUE(text.startsWith("th:.") && text.startsWith("") && !text.startsWith("th:. th:xx"));
    EXPECT_EQ(String(" \t\r\n a b \n").trim(), String("a b"));
    EXPECT_EQ(String("\xE3\x80\x80x\xE2\x80\x83").trim(), String("x")) << "ideographic space, em space";
    EXPECT_EQ(String("\xC2\xA0x\xE2\x80\xAF").trim().length(), 3U) << "no-break spaces stand for themselves";
    EXPECT_FALSE(String::isSpace(U'\u2007')) << "figure space: no line break inside a number";
}

TEST(String, ReplacesAndConcatenates) {
    EXPECT_EQ(String("a.b.c").replaceAll(".", ", "), String("a, b, c")) << "longer than what it replaces";
    EXPECT_EQ(String("aaaa").replaceAll("aa", "a"), String("aa")) << "no overlap, no second look";
    EXPECT_EQ(String("aXa").replaceAll("a", ""), String("X")) << "at both ends, by nothing";
    EXPECT_EQ(String("abc").replaceAll("", "-"), String("abc")) << "nothing to look for";
    EXPECT_EQ(String("a") + String("\xC3\xA4") + String(), String("a\xC3\xA4"));
}

constinit StaticStringData<2> twoLetters{{StringData::kImmortal, 2}, {U'o', U'k'}};

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
    const String fixed(&twoLetters.header);
    EXPECT_EQ(String(fixed), String("ok"));
    EXPECT_EQ(twoLetters.header.references.load(), StringData::kImmortal) << "a static text is not counted";
}

}  // namespace
}  // namespace VEXA
