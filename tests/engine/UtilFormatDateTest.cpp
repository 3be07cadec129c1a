#include <limits>

#include "tests/engine/EngineTestTools.h"
#include "vexa/support/core/Limits.h"
#include "vexa/util/DateFormat.h"
#include "vexa/util/Util.h"

namespace VEXA {
namespace {

using Testing::Case;

constexpr const char* kAllLetters = "G y yy yyy M MM MMM MMMM d h H k K m s S E EEEE D F w W a z O";

DateTimeEx date(std::string_view text) { return DateTimeEx::parse(text).value(); }

std::string format(const String& pattern, const char* iso) { return Util::dateFormat(pattern, date(iso)).toUtf8(); }

std::string format(const String& pattern, const DateFields& fields) {
    std::u32string out;
    appendDate(pattern, fields, out);
    return String(out).toUtf8();
}

struct DateCase {
    const char* pattern;
    const char* date;
    const char* expected;
    const char* why;
};

template <std::size_t N>
void check(const DateCase (&cases)[N]) {
    for (const DateCase& c : cases)
        EXPECT_EQ(format(c.pattern, c.date), c.expected) << c.pattern << " of " << c.date << ": " << c.why;
}

TEST(UtilDateFormat, FieldsOfTheDate) {
    check({
        {"date:dd/MM/yyyy", "2024-03-05", "05/03/2024", "a mark in front is left out"},
        {"yyyy date:", "2024-03-05", "2024 5AM:", "not behind: d, a, and letters without a meaning"},
        {"y|yy|yyy|yyyyyy", "2024-03-05", "24|24|2024|002024", "two digits, or all"},
        {"y|yy", "2005-03-05", "5|05", "two digits of which one is a zero"},
        {"y|yy|yyy", "0100-01-01", "0|00|100", "the first year that has a century"},
        {"y|yy|yyy", "0099-12-31", "||099", "the last one without: there is none to leave out"},
        {"M|MM|MMM|MMMM|MMMMM", "2024-03-05", "3|03|Mar|March|March", "digits, then names"},
        {"M|MM|MMM", "2024-12-05", "12|12|Dec", "two digits anyway"},
        {"MMM MMMM", "2024-05-01", "May May", "a short name that is the full one"},
        {"d|dd|ddd", "2024-03-05", "5|05|005", "as many zeros as letters ask for"},
        {"MMMM d, yyyy", "2024-03-05", "March 5, 2024", "other characters stay"},
        {"E|EEE|EEEE", "2024-03-05", "Tue|Tue|Tuesday", "2024-03-05 was a Tuesday"},
        {"D|DDDD", "2024-03-05", "65|0065", "31 and 29 days before"},
        {"F|FF", "2024-03-14", "2|2", "whole weeks, plain"},
        {"G yyyy z", "2024-03-05", "AD 2024 UTC", "era and zone"},
    });
    const std::pair<int, const char*> ordinals[] = {{1, "1st"},   {2, "2nd"},   {3, "3rd"},   {4, "4th"},
                                                    {10, "10th"}, {11, "11th"}, {12, "12th"}, {13, "13th"},
                                                    {21, "21st"}, {22, "22nd"}, {23, "23rd"}, {31, "31st"}};
    for (const auto& [day, text] : ordinals) EXPECT_EQ(Util::dateFormat("OO", DateTimeEx(2024, 1, day)).toUtf8(), text);
}

TEST(UtilDateFormat, FieldsOfTheTime) {
    check({
        {"h|hh|H|HH|k|K|a", "2024-03-05T00:07:09", "12|12|0|00|24|0|AM", "midnight"},
        {"h|H|k|K|a", "2024-03-05T01:00", "1|1|1|1|AM", "behind it"},
        {"h|H|k|K|a", "2024-03-05T11:59", "11|11|11|11|AM", "before noon"},
        {"h|H|k|K|a", "2024-03-05T12:00", "12|12|12|0|PM", "noon"},
        {"h|hh|H|k|K|a", "2024-03-05T23:00", "11|11|23|23|11|PM", "the last hour"},
        {"m|mm|s|sss|SSS.", "2024-03-05T00:07:09", "7|07|9|009|.", "minutes, seconds, and no fractions of them"},
        {"hh:mm a", "2024-03-05T00:07", "12:07 AM", "as a clock shows it"},
        {"HH:mm", "2024-03-05", "00:00", "a date alone is its midnight"},
    });
}

TEST(UtilDateFormat, WeeksOfTheYearAndOfTheMonth) {
    check({
        {"E w W", "2024-01-01", "Mon 1 1", "a week of the year starts on Monday"},
        {"E ww WW", "2024-01-06", "Sat 1 1", "plain, whatever the count"},
        {"E w W", "2024-01-07", "Sun 1 2", "one of the month on Sunday"},
        {"E w W", "2021-01-01", "Fri 53 1", "in the week of a Thursday of 2020"},
        {"E w", "2023-01-01", "Sun 52", "2022 had no 53 weeks"},
        {"E W", "2023-12-31", "Sun 6", "Friday and Saturday, four weeks, Sunday"},
        {"E", "9999-12-31", "Fri", "the last day of the calendar"},
    });
}

// The calendar comes again every 400 years, on the same weekdays. Counted day by day from its first one, a Monday.
TEST(UtilDateFormat, CountsThroughAllKindsOfYears) {
    int weekday = 2;
    std::int64_t weekOfYear = 1;
    std::int64_t weekOfMonth = 1;
    std::int64_t dayOfYear = 1;
    for (DateTimeEx at(1, 1, 1); at.getYear() <= 401; at = at.plusDays(1).value()) {
        const DateFields fields = DateFields::of(at);
        if (fields.day == 1) weekOfMonth = 1;
        if (fields.day == 1 && fields.month == 1) dayOfYear = 1;
        if (dayOfYear == 1 && weekday >= 2 && weekday <= 5) weekOfYear = 1;  // with its Thursday in this year
        if (weekday == 2 && dayOfYear <= 4) weekOfYear = 1;
        ASSERT_EQ(fields.weekday(), weekday) << at.toString();
        ASSERT_EQ(fields.dayOfYear(), dayOfYear) << at.toString();
        ASSERT_EQ(fields.weekOfYear(), weekOfYear) << at.toString();
        ASSERT_EQ(fields.weekOfMonth(), weekOfMonth) << at.toString();
        ++dayOfYear;
        weekday = weekday % 7 + 1;
        weekOfMonth += weekday == 1 ? 1 : 0;
        weekOfYear += weekday == 2 ? 1 : 0;
    }
}

TEST(UtilDateFormat, QuotesAndOtherCharacters) {
    check({
        {"'at' HH'h'", "2024-03-05T14:00", "at 14h", "quoted text is no pattern"},
        {"yyyy'' ''yyyy", "2024-03-05", "2024' '2024", "two quotes are one"},
        {"d 'o''''clock'", "2024-03-05", "5 o'clock", "between two texts as well"},
        {"'it''s'", "2024-03-05", "its", "not inside of one: it ends there, and the next starts"},
        {"d 'day", "2024-03-05", "5 day", "never closed: up to the end"},
        {"d'", "2024-03-05", "5'", "alone at the end"},
        {"'''", "2024-03-05", "''", "a pair, and one alone"},
        {"'date:'d", "2024-03-05", "date:5", "the mark as a text"},
        {"Q3", "2024-03-05", "3", "a letter without a meaning"},
        {"@A[Z]`b{x}", "2024-03-05", "@[]`{}", "the characters around the letters of ASCII stay"},
        {"d\xE5\xB9\xB4"
         "d\xC3\xA4"
         "d{0}",
         "2024-03-05",
         "5\xE5\xB9\xB4"
         "5\xC3\xA4"
         "5{0}",
         "only ASCII has letters"},
        {"dMyyyy", "2024-03-05", "532024", "a new letter is a new field"},
        {"", "2024-03-05", "", "nothing"},
        {"date:", "2024-03-05", "", "nothing behind the mark"},
    });
}

TEST(UtilDateFormat, WritesNothingForWhatADateLacks) {
    EXPECT_EQ(format("[GyyyMMMMMMdOEhHkKmsSFa]", DateFields()), "[]");
    const Case<std::pair<const char*, DateFields>, const char*> cases[] = {
        {{"G|yyy", DateFields{0, 3, 5}}, "BC|", "a year of no number"},
        {{"G|yyy", DateFields{-44, 3, 5}}, "BC|", "before our era"},
        {{"E", DateFields{2024, 0, 5}}, "", "a weekday needs the month"},
        {{"E", DateFields{2024, 3, 0}}, "", "and the day"},
        {{"F|d|O", DateFields{2024, 3, 0}}, "0||", "there is no day 0"},
        {{"M|MM|MMM", DateFields{2024, 13, 5}}, "13|13|", "a number without a name"},
        {{"MM", DateFields{2024, -1, 5}}, "-01", "a negative one"},
    };
    for (const auto& c : cases) EXPECT_EQ(format(c.in.first, c.in.second), c.out) << c.in.first << ": " << c.why;

    // Whatever the numbers are: no overflow, no endless search for a week.
    constexpr int kExtremes[] = {std::numeric_limits<int>::min(), -1, 0, 1, std::numeric_limits<int>::max()};
    for (const int year : kExtremes) {
        for (const int other : kExtremes)
            EXPECT_NE(format(kAllLetters, DateFields{year, other, other, other, other, other}), "");
    }
}

TEST(Limits, DatePattern) {
    const auto sizeOf = [](const std::string& pattern) { return format(pattern, "2024-03-05").size(); };
    EXPECT_EQ(sizeOf(std::string(1000, 'd')), 1000U);
    EXPECT_EQ(sizeOf("date:" + std::string(5'000'000, 'd')), Limits::kDatePattern);
    EXPECT_EQ(sizeOf(std::string(5'000'000, '\'')), Limits::kDatePattern / 2);
    EXPECT_EQ(sizeOf("'" + std::string(5'000'000, 'x')), Limits::kDatePattern - 1);
}

TEST(UtilDateFormat, TellsWhatIsNotReadAsItLooks) {
    const Case<std::string, const char*> cases[] = {
        {"d. MMMM yyyy", "", "all well"},
        {"'Quarter' M", "", "a text"},
        {"d MMMM of", "34063@3:7", "a text without quotes; told once"},
        {"#,##0.00", "34064@3:7", "a pattern for numbers"},
        {"Q", "34063@3:7 34064@3:7", "both"},
        {"date:" + std::string(1000, 'd'), "", "the longest one"},
        {std::string(1001, 'd'), "34062@3:7", "cut"},
    };
    for (const auto& c : cases) {
        Testing::CapturedLog log;
        checkDateFormat(c.in, {3, 7});
        EXPECT_EQ(log.told(), c.out) << c.in;
    }
}

}  // namespace
}  // namespace VEXA
