#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/AxisTicks.h"

namespace VEXA::Testing {
namespace {

std::string shown(const Vector<Value>& values) {
    std::string text;
    for (const Value& value : values) text += (text.empty() ? "" : " ") + value.getValue().toUtf8();
    return text;
}

TEST(AxisTicks, NumbersAreASteppedRange) {
    const struct {
        NumericSteps steps;
        std::string values;
        float min, max;
        const char* why;
    } cases[] = {
        {{0, 40, 10, false, false}, "0 10 20 30 40", 0, 40, "already on the grid"},
        {{-23, 37, 10, false, false}, "-30 -20 -10 0 10 20 30 40", -30, 40, "the range moves onto it"},
        {{5, 12, 5, false, false}, "5 10 15", 5, 15, "above zero the grid starts at the smallest value"},
        {{3, 20, 5, true, false}, "3 8 13 18", 3, 20, "counted from the given minimum; the last stays below the end"},
        {{0, 100, 20, true, false}, "0 20 40 60 80", 0, 100, "also where the end is a multiple"},
        {{0, 1, 0.1F, true, false}, "0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9", 0, 1, "sums that miss the end by a hair"},
        {{0, 100, 30, true, true}, "0 30 60 90", 0, 100, "a given minimum wins"},
        {{0, 47, 10, false, true}, "7 17 27 37 47", 0, 47, "counted back from the given maximum"},
        {{0.2F, 1, 0.1F, false, true}, "0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1", 0.2F, 1, "and arriving at the other end"},
        {{0, 40, 50, true, false}, "0", 0, 40, "a step beyond the end"},
        {{0, 40, 50, false, true}, "40", 0, 40, "or beyond the start"},
        {{-30, -20, 1e6F, false, true}, "-20", -30, -20, "also one beside which both ends are near zero"},
        {{0, 40, 50, false, false}, "0 40", 0, 40, "no step fits: both ends"},
        {{0, 40, 40, false, false}, "0 40", 0, 40, "one step"},
        {{0, 0, 0, false, false}, "0", 0, 0, "all data zero"},
        {{-0.3F, 0.3F, 0.1F, false, false}, "-0.3 -0.2 -0.1 0 0.1 0.2 0.3", -0.3F, 0.3F, "zero, not 2e-8"},
        {{-0.9F, 0, 0.1F, true, false}, "-0.9 -0.8 -0.7 -0.6 -0.5 -0.4 -0.3 -0.2 -0.1", -0.9F, 0, "not -0.0999999"},
        {{-0.9F, 0, 0.1F, false, true}, "-0.9 -0.8 -0.7 -0.6 -0.5 -0.4 -0.3 -0.2 -0.1 0", -0.9F, 0, "nor back from 0"},
        {{-1.1F, 0.45F, 0.2F, true, false}, "-1.1 -0.9 -0.7 -0.5 -0.3 -0.1 0.1 0.3", -1.1F, 0.45F, "past zero"},
        {{16777213, 16777230, 1, true, false},
         "16777213 16777214 16777215 16777216",
         16777213,
         16777230,
         "a sum of ones stalls at 2^24"},
        {{-3e38F, 3e38F, 1e38F, true, false},
         shown({Value(-3e38F), Value(-2e38F), Value(-1e38F)}) + " 0 " + shown({Value(1e38F), Value(2e38F)}),
         -3e38F,
         3e38F,
         "a span beyond all floats"},
    };
    for (const auto& c : cases) {
        NumericSteps steps = c.steps;
        const AxisTicks ticks = numericTicks(steps, 100);
        EXPECT_EQ(shown(ticks.values), c.values) << c.why;
        EXPECT_FLOAT_EQ(steps.min, c.min) << c.why;
        EXPECT_FLOAT_EQ(steps.max, c.max) << c.why;
        EXPECT_FALSE(ticks.isThinned);
    }
}

TEST(AxisTicks, DatesAreTheStartsOfDaysMonthsAndYears) {
    const struct {
        DateTimeEx first, last;
        DateUnit unit;
        std::string values;
        const char* why;
    } cases[] = {
        {{2024, 2, 27}, {2024, 3, 1}, DateUnit::Days, "2024-02-27 2024-02-28 2024-02-29 2024-03-01", "a leap day"},
        {{2024, 5, 1, 14, 30}, {2024, 5, 2, 3}, DateUnit::Days, "2024-05-01 2024-05-02", "from midnight on"},
        {{2023, 11, 15},
         {2024, 2, 1},
         DateUnit::Months,
         "2023-11-01 2023-12-01 2024-01-01 2024-02-01",
         "across a year"},
        {{2022, 7, 1}, {2024, 1, 1}, DateUnit::Years, "2022-01-01 2023-01-01 2024-01-01", "both years included"},
        {{9999, 12, 30}, {9999, 12, 31}, DateUnit::Days, "9999-12-30 9999-12-31", "the end of the calendar"},
        {{2024, 5, 2}, {2024, 5, 1}, DateUnit::Days, "", "nothing backwards"},
    };
    for (const auto& c : cases) EXPECT_EQ(shown(dateTicks(c.first, c.last, c.unit, 4).values), c.values) << c.why;
}

TEST(AxisTicks, DateUnitIsTheFinestThatFits) {
    const DateTimeEx start(2020, 1, 1);
    const struct {
        AxisUnitsType given;
        int labels;
        DateTimeEx last;
        DateUnit unit;
        const char* why;
    } cases[] = {
        {AxisUnitsType::Automatic, 20, {2020, 1, 11}, DateUnit::Days, "10 days"},
        {AxisUnitsType::Automatic, 10, {2020, 1, 11}, DateUnit::Days, "as many as fit"},
        {AxisUnitsType::Automatic, 9, {2020, 1, 11}, DateUnit::Months, "one too many; no month lies between"},
        {AxisUnitsType::Automatic, 20, {2021, 2, 4}, DateUnit::Months, "400 days, 13 months"},
        {AxisUnitsType::Automatic, 20, {2030, 1, 1}, DateUnit::Years, "10 years"},
        {AxisUnitsType::Automatic, 0, {2020, 2, 1}, DateUnit::Years, "labels without extent"},
        {AxisUnitsType::Days, 1, {2030, 1, 1}, DateUnit::Days, "as given"},
        {AxisUnitsType::Months, 1, {2030, 1, 1}, DateUnit::Months, "as given"},
        {AxisUnitsType::Years, 100, {2020, 1, 2}, DateUnit::Years, "as given"},
        {AxisUnitsType::Number, 100, {2020, 1, 2}, DateUnit::Years, "a number is no unit of dates"},
    };
    for (const auto& c : cases) EXPECT_EQ(dateUnit(c.given, c.labels, start, c.last), c.unit) << c.why;
}

}  // namespace
}  // namespace VEXA::Testing
