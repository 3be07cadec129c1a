#include <gtest/gtest.h>

#include <tuple>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/NearestName.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/support/core/StringFormatStream.h"
#include "vexa/support/core/StringTable.h"

namespace VEXA {
namespace {

/// What becomes of one text.
struct TextCase {
    std::string text;
    std::string_view expected;
    const char* why;
};

TEST(StringFormatStream, FillsFieldsInOnePass) {
    const std::tuple<const char*, VariantArray, const char*, const char*> cases[] = {
        {"{1}{0}{1}", {String("a"), String("b")}, "bab", "any order, more than once"},
        {"{0}!", {String("{1}{0}"), String("b")}, "{1}{0}!", "an argument is never a template"},
        {"{0}{1}", {String("{"), String("1}")}, "{1}", "nor are two of them together"},
        {"{0} {1}", {String("a")}, "a {1}", "a field without an argument stays"},
        {"{10}", VariantArray(11, String("x")), "x", "two digits"},
        {"{99999999999999999999}", {String("a")}, "{99999999999999999999}", "no argument has that number"},
        {"{} {a} {0 {{0}} }{", {String("x")}, "{} {a} {0 {x} }{", "braces that are no fields stay"},
        {"{0} {1}", {std::int64_t{-9223372036854775807}, 0.1 + 0.2}, "-9223372036854775807 0.3", "numbers"},
    };
    for (const auto& [text, with, expected, why] : cases)
        EXPECT_EQ(StringFormatStream::format(text, with).toUtf8(), expected) << why;
    EXPECT_EQ((StringFormatStream("{1} of {0}") << String("a") << String("b")).str(), String("b of a"));
}

TEST(StringTable, FindsMessagesByNumber) {
    const VariantArray arguments = {String("serie"), String("width"), String("thick"), String("a length")};
    EXPECT_EQ(messageText(3003, arguments).toUtf8(), R"(serie: attribute "width": "thick" is not a length)");
    EXPECT_FALSE(String::loadString(1001).isEmpty()) << "the first row";
    for (const int unknown : {0, -1, 1000, 2003, 33999, 2147483647}) {
        EXPECT_TRUE(String::loadString(unknown).isEmpty()) << unknown;
    }
    EXPECT_EQ(messageText(2003, {}).toUtf8(), "message number 2003") << "better than an empty line";
}

TEST(QuotedText, ShowsWhatCannotBeSeen) {
    const TextCase cases[] = {
        {"stroke \"x\" \\n", "stroke \"x\" \\n", "ordinary text is left alone"},
        {"a\nb\tc\r", "a\\nb\\tc\\r", "a second line would look like another message"},
        {"\x1B[31m", "\\u001b[31m", "would colour the terminal"},
        {"\x7F\xC2\x9B", "\\u007f\\u009b", "DEL and a control of the upper range"},
        {"\xE2\x80\xAEgpj.exe", "\\u202egpj.exe", "would show the rest backwards"},
        {"\xD8\xB9\xF0\x9F\x98\x80", "\xD8\xB9\xF0\x9F\x98\x80", "letters of any script can be seen"},
    };
    for (const TextCase& c : cases) EXPECT_EQ(quoteForMessage(c.text).toUtf8(), c.expected) << c.why;
}

TEST(Limits, Quotes) {
    const std::string limit(Limits::kQuotedCharacters, 'x');
    EXPECT_EQ(quoteForMessage(limit).toUtf8(), limit);
    EXPECT_EQ(quoteForMessage(limit + "yz").toUtf8(), limit + "\xE2\x80\xA6");
    EXPECT_EQ(quoteForMessage(String(limit + "\n")).toUtf8(), limit + "\xE2\x80\xA6") << "cut first, then escaped";
    EXPECT_EQ(escapeForMessage(limit + "y\n").toUtf8(), limit + "y\\n") << "names of files are told in full";
}

TEST(NearestName, GuessesWhatWasMeant) {
    const std::string longest(64, 'n');
    const std::string_view known[] = {"fill", "stroke", "stroke-width", "data-point", "category", "cx", "cy", longest};
    const TextCase cases[] = {
        {"categorry", "category", "inserted letter"},
        {"streke", "stroke", "changed letter"},
        {"flil", "fill", "swapped neighbours are one slip, where one is allowed"},
        {"DATA-PONT", "data-point", "case and a slip"},
        {"categories", "category", "three slips in ten letters: one changed, two more"},
        {"categroies", "", "and two of them swapped: four"},
        {"fxxl", "", "two slips in four letters"},
        {"cate", "category", "the beginning of a name"},
        {"STROKE-", "stroke", "but a slip is nearer"},
        {"cat", "", "three letters begin too many names"},
        {"cz", "cx", "two are equally near: the first"},
        {"", "", "nothing to go by"},
        {longest.substr(1), longest, "the longest names are still compared"},
        {longest + "n", "", "longer than names are, though near"},
        {std::string(100'000, 'f'), "", "does not take a second"},
    };
    for (const TextCase& c : cases) EXPECT_EQ(nearestName(c.text, known), c.expected) << c.text << ": " << c.why;
}

TEST(Limits, NearestNames) {
    std::vector<std::string_view> known(Limits::kNearestNames, "other");
    known.back() = "fill";
    EXPECT_EQ(nearestName("fil", known), "fill");
    known.insert(known.begin(), "other");
    EXPECT_EQ(nearestName("fil", known), "") << "the last one that is looked at comes before it";
}

}  // namespace
}  // namespace VEXA
