#include "vexa/support/values/Value.h"

#include <cfloat>
#include <unordered_set>
#include <utility>

#include "TextForm.h"

namespace VEXA {
namespace {

using namespace Testing;

TEST(Value, KindIsFoundFromTheText) {
    struct Case {
        const char* text;
        ValueKind kind;
        const char* why;
    };
    const Case cases[] = {
        {"", ValueKind::None, ""},
        {" \t\n", ValueKind::None, "blank"},
        {"0", ValueKind::Number, "zero is a value"},
        {"-12.5e2", ValueKind::Number, ""},
        {" 42 ", ValueKind::Number, "white space at both ends"},
        {"20240305", ValueKind::Number, "digits alone are no date"},
        {"2024", ValueKind::Number, "a year alone is a number"},
        {"1e999", ValueKind::Text, "no finite number"},
        {"1e-999", ValueKind::Number, "too small to tell from zero"},
        {"nan", ValueKind::Text, "a word"},
        {"-inf", ValueKind::Text, "a word"},
        {"0x1F", ValueKind::Text, "decimal numbers only"},
        {"1,234", ValueKind::Text, "no grouping"},
        {"12 %", ValueKind::Text, "the whole text must read as a number"},
        {"+", ValueKind::Text, "a sign alone"},
        {"2024-03-05", ValueKind::Date, ""},
        {" 2024-03-05T14:30:00 ", ValueKind::Date, "with a time"},
        {"2024-02-29", ValueKind::Date, "leap day"},
        {"2023-02-29", ValueKind::Text, "no such day"},
        {"2024-3-5", ValueKind::Text, "two digits each"},
        {"05.03.2024", ValueKind::Text, "ISO dates only"},
        {"-5 apples", ValueKind::Text, "starts as a number"},
        {"\xE2\x82\xAC", ValueKind::Text, "beyond ASCII"},
    };
    for (const Case& c : cases) EXPECT_EQ(parsed<Value>(c.text).getKind(), c.kind) << c.text << ": " << c.why;
}

TEST(Value, Texts) {
    checkTexts<Value>({
        {"", "", "no value"},
        {"  ", "", "likewise"},
        {"12.50", "12.5", "a number"},
        {"20240305", "20240305", "more digits than single precision holds"},
        {"0.1", "0.1", ""},
        {"0.30000000000000004", "0.30000000000000004", "all digits, so that it is read again"},
        {"1e300", "1e+300", ""},
        {"2024-03-05T00:00:00", "2024-03-05", "midnight is left out"},
        {"2024-03-05T14:30", "2024-03-05T14:30:00", ""},
        {"North", "North", ""},
        {"  spaced out ", "  spaced out ", "a text is kept as it is"},
    });
}

TEST(Value, OwnText) {
    EXPECT_EQ(Value().getValue(), String());
    EXPECT_EQ(Value(0.1 + 0.1 + 0.1).getValue(), String("0.3")) << "what a person expects";
    EXPECT_EQ(Value(20240305).getValue(), String("20240305")) << "integers exactly";
    EXPECT_EQ(Value(DateTimeEx(2024, 3, 5)).getValue(), String("2024-03-05"));
    EXPECT_EQ(Value(DateTimeEx(2024, 3, 5, 14, 30, 0)).getValue(), String("2024-03-05T14:30:00"));
    EXPECT_EQ(Value(String(" North ")).getValue(), String(" North "));
}

TEST(Value, NumbersKeepDoublePrecisionAndHandOutFiniteFloats) {
    EXPECT_NE(parsed<Value>("20240305"), parsed<Value>("20240306")) << "the same float";
    EXPECT_EQ(Value(20240305).getDouble(), 20240305.0);
    EXPECT_EQ(Value(2.5).getFloat(), 2.5F);
    EXPECT_EQ(Value(1e300).getFloat(), FLT_MAX);
    EXPECT_EQ(Value(-1e300).getFloat(), -FLT_MAX);
}

TEST(Value, OtherKindsHaveNeitherNumberNorDate) {
    for (const char* text : {"", "North", "2024-03-05"}) EXPECT_EQ(parsed<Value>(text).getDouble(), 0.0) << text;
    for (const char* text : {"", "North", "7"}) EXPECT_EQ(parsed<Value>(text).getDate(), DateTimeEx()) << text;
    EXPECT_EQ(parsed<Value>("2024-03-05").getDate(), DateTimeEx(2024, 3, 5));
}

TEST(Value, EqualWhenKindAndContentAre) {
    struct Case {
        const char* a;
        const char* b;
        bool equal;
        const char* why;
    };
    const Case cases[] = {
        {"", " ", true, "no value"},
        {"1", "1.0", true, "the same number"},
        {"0", "-0", true, "the same number"},
        {"1", "1.0000001", false, "differ in single precision already"},
        {"0", "", false, "zero is a value"},
        {"2024-03-05", "2024-03-05T00:00", true, "the same moment"},
        {"2024-03-05", "2024-03-05T00:00:01", false, "a second later"},
        {"2024-03-05", "20240305", false, "a date is no number"},
        {"a", "a", true, "two objects, one text"},
        {"a", "a ", false, "texts as they are"},
        {"a", "A", false, "likewise"},
    };
    for (const Case& c : cases) {
        const auto a = parsed<Value>(c.a);
        const auto b = parsed<Value>(c.b);
        EXPECT_EQ(a == b, c.equal) << c.a << " / " << c.b << ": " << c.why;
        EXPECT_TRUE(!c.equal || a.hash() == b.hash()) << c.a << " / " << c.b;
    }
}

TEST(Value, ServesAsAKey) {
    std::unordered_set<Value> seen;
    for (const char* text : {"1", "North", "2024-03-05", "", "1.0", "North", "2024-03-05", " "})
        seen.insert(parsed<Value>(text));
    EXPECT_EQ(seen.size(), 4U);
}

TEST(Value, TextsAreSharedByCopies) {
    const String text("a text that is counted");
    Value first{text};
    Value copy(first);
    Value assigned;
    assigned = copy;
    Value moved(std::move(copy));
    first = Value(1.0);
    EXPECT_EQ(first.getDouble(), 1.0);
    EXPECT_EQ(moved.getValue().view().data(), text.view().data()) << "no copy of the characters";
    EXPECT_EQ(assigned, moved);
    assigned = Value();
    EXPECT_EQ(moved.getValue(), text) << "the others keep it";
    EXPECT_TRUE(assigned.isNone());
}

TEST(Value, AnEmptyTextIsNoValue) { EXPECT_TRUE(Value(String()).isNone()); }

}  // namespace
}  // namespace VEXA
