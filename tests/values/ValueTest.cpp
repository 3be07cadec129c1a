#include "vexa/support/values/Value.h"

#include <cfloat>
#include <tuple>
#include <utility>

#include "TextForm.h"

namespace VEXA {
namespace {

using namespace Testing;

TEST(Value, KindIsFoundFromTheText) {
    const std::tuple<const char*, ValueKind, const char*> cases[] = {
        {" \t\n", ValueKind::None, "blank"},
        {"0", ValueKind::Number, "zero is a value"},
        {" -12.5e2 ", ValueKind::Number, "sign, point and exponent"},
        {"20240305", ValueKind::Number, "digits alone are no date"},
        {"1e999", ValueKind::Text, "no finite number"},
        {"1e-999", ValueKind::Number, "too small to tell from zero"},
        {"1,234", ValueKind::Text, "no grouping"},
        {" 2024-03-05T14:30:00 ", ValueKind::Date, "with a time"},
        {"2023-02-29", ValueKind::Text, "no such day"},
    };
    for (const auto& [text, kind, why] : cases) EXPECT_EQ(parsed<Value>(text).getKind(), kind) << text << ": " << why;
}

TEST(Value, Texts) {
    checkTexts<Value>({
        {"0.30000000000000004", "0.30000000000000004", "all digits, so that it is read again"},
        {"2024-03-05T00:00:00", "2024-03-05", "midnight is left out"},
        {"2024-03-05T14:30", "2024-03-05T14:30:00", ""},
        {"  spaced out ", "  spaced out ", "a text is kept as it is"},
    });
}

TEST(Value, OwnTextAndNumbersInDoublePrecisionOrAsFiniteFloats) {
    EXPECT_EQ(Value().getValue(), String());
    EXPECT_TRUE(Value(String()).isNone());
    EXPECT_EQ(Value(0.1 + 0.1 + 0.1).getValue(), String("0.3")) << "what a person expects";
    EXPECT_EQ(Value(20240305).getValue(), String("20240305")) << "integers exactly";
    EXPECT_EQ(Value(DateTimeEx(2024, 3, 5, 14, 30, 0)).getValue(), String("2024-03-05T14:30:00"));
    EXPECT_NE(parsed<Value>("20240305"), parsed<Value>("20240306")) << "the same float";
    EXPECT_EQ(Value(1e300).getFloat(), FLT_MAX);
    EXPECT_EQ(Value(-1e300).getFloat(), -FLT_MAX);
}

TEST(Value, OtherKindsHaveNeitherNumberNorDate) {
    for (const char* text : {"", "North", "2024-03-05"}) EXPECT_EQ(parsed<Value>(text).getDouble(), 0.0) << text;
    for (const char* text : {"", "North", "7"}) EXPECT_EQ(parsed<Value>(text).getDate(), DateTimeEx()) << text;
    EXPECT_EQ(parsed<Value>("2024-03-05").getDate(), DateTimeEx(2024, 3, 5));
}

TEST(Value, EqualWhenKindAndContentAre) {
    const std::tuple<const char*, const char*, bool, const char*> cases[] = {
        {"", " ", true, "no value"},
        {"0", "-0.0", true, "the same number"},
        {"1", "1.0000001", false, "differ in single precision already"},
        {"0", "", false, "zero is a value"},
        {"2024-03-05", "2024-03-05T00:00", true, "the same moment"},
        {"2024-03-05", "2024-03-05T00:00:01", false, "a second later"},
        {"2024-03-05", "20240305", false, "a date is no number"},
        {"a", "a", true, "two objects, one text"},
        {"a", "a ", false, "texts as they are"},
    };
    for (const auto& [left, right, equal, why] : cases) {
        const auto a = parsed<Value>(left);
        const auto b = parsed<Value>(right);
        EXPECT_EQ(a == b, equal) << left << " / " << right << ": " << why;
        EXPECT_TRUE(!equal || a.hash() == b.hash()) << left << " / " << right;
    }
}

TEST(Value, TextsAreSharedByCopies) {
    const String text("a text that is counted");
    Value first{text};
    Value copy(first);
    Value assigned;
    assigned = copy;
    Value moved(std::move(copy));
    first = Value(1.0);
    EXPECT_EQ(moved.getValue().view().data(), text.view().data()) << "no copy of the characters";
    EXPECT_EQ(assigned, moved);
    assigned = Value();
    EXPECT_EQ(moved.getValue(), text) << "the others keep it";
}

}  // namespace
}  // namespace VEXA
