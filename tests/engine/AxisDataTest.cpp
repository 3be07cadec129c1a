#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/AxisData.h"

namespace VEXA::Testing {
namespace {

Value value(const std::string& text) {
    Value read;
    ValueTraits<Value>::parse(text, read);
    return read;
}

std::string shown(const AxisRange& range) {
    return range.min.getValue().toUtf8() + ".." + range.max.getValue().toUtf8();
}

TEST(AxisData, ValuesAreIndexedInTheOrderOfTheirFirstAppearance) {
    ValueIndex index;
    EXPECT_EQ(index.find(value("a")), ValueIndex::kNone);
    std::size_t last = 0;
    for (const char* text : {"b", "a", "b", "2024", "2024-01-01", "0", "-0", "b "}) last = index.add(value(text));
    EXPECT_EQ(last, 5U) << "b, a, a number, a date, zero, and a text with a blank";
    EXPECT_EQ(index.find(value("2024.0")), 2U) << "the same number";
    EXPECT_EQ(index.find(Value(String("2024"))), ValueIndex::kNone) << "a text is no number";

    ValueIndex days;
    for (int round = 0; round < 2; ++round) {
        for (int day = 0; day < 5000; ++day)
            EXPECT_EQ(days.add(Value(*DateTimeEx(1990, 1, 1).plusDays(day))), static_cast<std::size_t>(day));
    }
    EXPECT_EQ(days.size(), 5000U);
}

TEST(AxisData, RangeHoldsWhatTheAxisShows) {
    const AxisUnits automatic;
    const AxisUnits tens(AxisUnitsType::Number, 10);
    const struct {
        ValueKind kind;
        std::vector<std::string> values;
        AxisUnits unit;
        std::string range;
        const char* why;
    } cases[] = {
        {ValueKind::Number, {"37", "12"}, automatic, "0..40", "from zero to the next round number"},
        {ValueKind::Number, {"-7", "-23"}, automatic, "-25..0", "up to zero"},
        {ValueKind::Number, {"1234", "-7"}, automatic, "-8..1400", "both ends outward"},
        {ValueKind::Number, {"10"}, automatic, "0..12", "a round number moves on, too"},
        {ValueKind::Number, {"37", "-23"}, tens, "-30..40", "onto multiples of the unit"},
        {ValueKind::Number, {"x", "2024-01-01"}, automatic, "0..0", "what is no number has none"},
        {ValueKind::Date, {"2024-03-05", "2023-12-31T10:00:00", "1"}, tens, "2023-12-31T10:00:00..2024-03-05", "dates"},
        {ValueKind::Date, {"1"}, automatic, "..", "no dates"},
        {ValueKind::Text, {"B", "7", "A", "B", "7.0", ""}, automatic, "B..A", "B, 7, A: the first and the last"},
        {ValueKind::Text, {}, automatic, "..", "no texts"},
        {ValueKind::None, {"1", "a"}, automatic, "..", "an axis that shows nothing"},
    };
    for (const auto& c : cases) {
        AxisData data(c.kind);
        for (const std::string& text : c.values) {
            data.addText(value(text));
            data.addExtreme(value(text));
        }
        EXPECT_EQ(shown(data.range(c.unit)), c.range) << c.why;
    }
}

TEST(AxisData, DocumentBoundsReplaceEndsOfTheRange) {
    const struct {
        const char *data, *dataMax, *min, *max, *range, *why;
    } cases[] = {
        {"0", "40", "", "", "0..40", "none given"},
        {"0", "40", "10", "", "10..40", "the one"},
        {"0", "40", "", "20", "0..20", "the other"},
        {"0", "40", "50", "", "50..90", "above the data: as far on as the data's largest"},
        {"0", "40", "50", "30", "50..90", "also when the given largest is too small"},
        {"-30", "0", "5", "", "5..5", "nothing to go on by"},
        {"0", "0.3", "0.1", "", "0.1..0.3", "decimals"},
        {"2024-01-01", "2024-02-01", "2023-12-01", "2024-03-01", "2023-12-01..2024-03-01", "dates"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(shown(boundedRange({value(c.data), value(c.dataMax)}, {value(c.min), value(c.max)})), c.range)
            << c.why;
    EXPECT_EQ(shown(usableBounds({value("low"), value("2024-01-01")}, ValueKind::Date)), "..2024-01-01");
    EXPECT_EQ(shown(usableBounds({value("low"), value("7")}, ValueKind::Text)), "low..7") << "texts take all";
}

TEST(AxisData, TotalsOfACategoryKeepSignsApart) {
    StackedTotals totals;
    for (const float number : {3.0F, -2.0F, 4.0F, 0.0F, -1.0F}) totals.add(value("Q1"), number);
    totals.add(value("2024"), 3e38F);
    totals.add(value("2024"), 3e38F);
    EXPECT_EQ(totals.find(value("Q1"), true), 7);
    EXPECT_EQ(totals.find(value("Q1"), false), -3);
    EXPECT_EQ(totals.find(value("2024"), true), std::numeric_limits<float>::max()) << "finite";
    EXPECT_EQ(totals.find(value("Q2"), true), 0);
}

}  // namespace
}  // namespace VEXA::Testing
