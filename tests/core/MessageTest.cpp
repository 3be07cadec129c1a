#include <gtest/gtest.h>

#include <array>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/NearestName.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/support/core/StringFormatStream.h"
#include "vexa/support/core/StringTable.h"

namespace VEXA {
namespace {

TEST(StringFormatStream, FillsPlaceholdersInOnePass) {
    struct Case {
        const char* pattern;
        VariantArray arguments;
        const char* expected;
        const char* why;
    };
    const Case cases[] = {
        {"{0} of {1}", {String("a"), String("b")}, "a of b", ""},
        {"{1}{0}{1}", {String("a"), String("b")}, "bab", "any order, more than once"},
        {"{0}!", {String("{1}{0}"), String("b")}, "{1}{0}!", "an argument is never a template"},
        {"{0}{1}", {String("{"), String("1}")}, "{1}", "nor are two of them together"},
        {"{0} {1}", {String("a")}, "a {1}", "a placeholder without an argument stays"},
        {"{10}", VariantArray(11, String("x")), "x", "two digits"},
        {"{99999999999999999999}", {String("a")}, "{99999999999999999999}", "no argument has that number"},
        {"{} {a} {0 {{0}} }{", {String("x")}, "{} {a} {0 {x} }{", "braces that are no placeholders stay"},
        {"", {String("a")}, "", ""},
        {"{0} {1}",
         {std::int64_t{-9223372036854775807}, 0.1 + 0.2},
         "-9223372036854775807 0.3",
         "integers exactly, reals as people write them"},
        {"\xC3\xA4{0}", {String("\xE2\x82\xAC")}, "\xC3\xA4\xE2\x82\xAC", "characters, not bytes"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(StringFormatStream::format(c.pattern, c.arguments).toUtf8(), c.expected) << c.why;
        StringFormatStream stream(c.pattern);
        for (const Variant& argument : c.arguments) stream << argument;
        EXPECT_EQ(stream.str().toUtf8(), c.expected) << c.why;
    }
}

TEST(StringTable, FindsMessagesByNumber) {
    EXPECT_EQ(messageText(2001, {String("grouping {0}")}).toUtf8(), "grouping {0}");
    EXPECT_EQ(
        messageText(3003, {String("serie"), String("stroke-width"), String("thick"), String("a length")}).toUtf8(),
        R"(serie: attribute "stroke-width": "thick" is not a length)");
    EXPECT_FALSE(String::loadString(1001).isEmpty()) << "the first row";
    EXPECT_FALSE(String::loadString(34014).isEmpty()) << "a late row";
    for (const int unknown : {0, -1, 1000, 2003, 33999, 2147483647}) {
        EXPECT_TRUE(String::loadString(unknown).isEmpty()) << unknown;
    }
    EXPECT_EQ(messageText(2003, {}).toUtf8(), "message number 2003") << "better than an empty line";
}

TEST(QuotedText, ShowsWhatCannotBeSeen) {
    struct Case {
        const char* text;
        const char* expected;
        const char* why;
    };
    const Case cases[] = {
        {"stroke \"x\" \\n", "stroke \"x\" \\n", "ordinary text is left alone"},
        {"a\nb\tc\r", "a\\nb\\tc\\r", "a second line would look like another message"},
        {"\x1B[31m", "\\u001b[31m", "would colour the terminal"},
        {"\x7F\xC2\x9B", "\\u007f\\u009b", "DEL and a control of the upper range"},
        {"\xE2\x80\xAEgpj.exe", "\\u202egpj.exe", "would show the rest backwards"},
        {"\xE2\x80\xA8x", "\\u2028x", "a line separator"},
        {"\xD8\xB9\xF0\x9F\x98\x80", "\xD8\xB9\xF0\x9F\x98\x80", "letters of any script can be seen"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(quoteForMessage(c.text).toUtf8(), c.expected) << c.why;
        EXPECT_EQ(escapeForMessage(c.text).toUtf8(), c.expected) << c.why;
    }
}

TEST(Limits, Quotes) {
    const std::string limit(Limits::kQuotedCharacters, 'x');
    EXPECT_EQ(quoteForMessage(limit).toUtf8(), limit);
    EXPECT_EQ(quoteForMessage(limit + "yz").toUtf8(), limit + "\xE2\x80\xA6");
    EXPECT_EQ(quoteForMessage(String(limit + "\n")).toUtf8(), limit + "\xE2\x80\xA6") << "cut first, then escaped";
    EXPECT_EQ(escapeForMessage(limit + "yz").toUtf8(), limit + "yz") << "names of files are told in full";
}

TEST(NearestName, GuessesWhatWasMeant) {
    constexpr std::array<std::string_view, 9> kKnown = {
        "fill", "stroke", "stroke-width", "stroke-opacity", "x", "data-point", "category", "cx", "cy"};
    struct Case {
        std::string wanted;
        const char* expected;
        const char* why;
    };
    const Case cases[] = {
        {"strok", "stroke", "dropped letter"},
        {"strooke", "stroke", "inserted letter"},
        {"streke", "stroke", "changed letter"},
        {"storke-width", "stroke-width", "swapped neighbours are one slip"},
        {"flil", "fill", "in a name that allows one slip only"},
        {"Stroke-Width", "stroke-width", "case alone"},
        {"DATA-PONT", "data-point", "case and a slip"},
        {"datapoint", "data-point", "the hyphen forgotten"},
        {"stroke_opacity", "stroke-opacity", "the wrong hyphen"},
        {"categories", "category", "three slips in ten letters: one changed, two more"},
        {"categroies", "", "and two of them swapped: four"},
        {"fi", "", "half of the name is missing"},
        {"fxxl", "", "two slips in four letters"},
        {"color", "", "nothing like it"},
        {"cz", "cx", "two are equally near: the first"},
        {"z", "", "one letter, and that one wrong"},
        {"", "", "nothing to go by"},
        {std::string(64, 'f'), "", ""},
        {std::string(65, 'f'), "", "longer than names are"},
        {std::string(100'000, 'f'), "", "does not take a second"},
    };
    for (const Case& c : cases) EXPECT_EQ(nearestName(c.wanted, kKnown), c.expected) << c.wanted << ": " << c.why;

    const std::string longest(64, 'n');
    const std::array<std::string_view, 2> known = {longest, "n"};
    EXPECT_EQ(nearestName(longest.substr(0, 63), known), longest) << "the longest names are still compared";
    EXPECT_EQ(nearestName("fill", {}), "") << "nothing is known";
}

}  // namespace
}  // namespace VEXA
