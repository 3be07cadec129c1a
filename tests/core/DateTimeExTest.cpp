#include "vexa/support/core/DateTimeEx.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace VEXA {
namespace {

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();

DateTimeEx date(std::string_view text) { return DateTimeEx::parse(text).value(); }

std::string textOf(const std::optional<DateTimeEx>& value) { return value ? value->toString() : "none"; }

TEST(DateTimeEx, ReadsIsoDates) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"2024-03-05T14:30:07Z", "2024-03-05T14:30:07", "all fields"},
        {"2024-03-05T14:30Z", "2024-03-05T14:30:00", "seconds are optional, before the Z too"},
        {"2024-03-05T14:30:00.5", "none", "no fractions"},
        {"2024-03-05T00:00:00", "2024-03-05", "a midnight time is not written"},
        {"0001-01-01", "0001-01-01", "the first day; the year keeps its zeros"},
        {"9999-12-31T23:59:59", "9999-12-31T23:59:59", "the last second of the calendar"},
        {"1900-02-29", "none", "divisible by 100 only: a common year"},
        {"2024-13-01", "none", "month 13"},
        {"2024-00-01", "none", "month 0"},
        {"2024-01-00", "none", "day 0"},
        {"0000-01-01", "none", "there is no year 0"},
        {"2024-03-05T24:00", "none", "midnight is 00:00 of the next day"},
        {"2024-03-05T12:60", "none", "an hour has 60 minutes"},
        {"2024-03-05T12:00:60", "none", "leap seconds are unknown"},
        {"2024-3-05", "none", "two digits for the month"},
        {"12024-03-05", "none", "four for the year, not five"},
        {"2024-03-05Z", "none", "a zone belongs to a time"},
        {"", "none", "nothing at all"},
    };
    for (const auto& [text, expected, why] : cases) EXPECT_EQ(textOf(DateTimeEx::parse(text)), expected) << text << why;
}

TEST(DateTimeEx, WalksEveryDayOfTheCalendar) {
    int year = 1;
    int month = 1;
    int day = 1;
    for (std::optional<DateTimeEx> at = DateTimeEx(); at; at = at->plusDays(1)) {
        ASSERT_TRUE(at->getYear() == year && at->getMonth() == month && at->getDay() == day) << at->toString();
        if (++day <= DateTimeEx::daysInMonth(year, month)) continue;
        day = 1;
        month = month % 12 + 1;
        if (month == 1) ++year;
    }
    EXPECT_EQ(year, 10000) << "the walk ends behind the last day";
}

TEST(DateTimeEx, MovesByDays) {
    EXPECT_EQ(textOf(date("2024-01-01").plusDays(-1)), "2023-12-31") << "backwards over a year";
    EXPECT_EQ(textOf(date("2024-03-05T14:30").plusDays(0)), "2024-03-05") << "the time goes, also with a step of none";
    EXPECT_EQ(textOf(date("9999-12-31T12:00").plusDays(1)), "none") << "behind the last day";
    EXPECT_EQ(textOf(date("0001-01-01").plusDays(-1)), "none") << "before the first";
    EXPECT_EQ(textOf(date("2024-01-01").plusDays(kMost)), "none") << "does not overflow";
    EXPECT_EQ(textOf(date("2024-01-01").plusDays(-kMost - 1)), "none") << "nor here";
    EXPECT_EQ(date("2024-02-29T14:30").monthStart().toString(), "2024-02-01");
}

TEST(DateTimeEx, CountsDaysAndMonthsBetween) {
    const std::tuple<const char*, const char*, std::int64_t, std::int64_t, const char*> cases[] = {
        {"2024-01-31", "2024-03-01", 30, 2, "months are those of the calendar, not of 30 days"},
        {"2023-12-31T23:59", "2024-01-01T00:00", 1, 1, "one minute apart, on two calendar days"},
        {"2022-11-15", "2024-02-01", 443, 15, "16 days of November, 31, 365 and 31 days"},
        {"2024-03-01", "2024-01-31", 0, 0, "the second date is the earlier one"},
    };
    for (const auto& [a, b, days, months, why] : cases) {
        EXPECT_EQ(DateTimeEx::dayDiff(date(a), date(b)), days) << why;
        EXPECT_EQ(DateTimeEx::monthDiff(date(a), date(b)), months) << why;
    }
}

TEST(DateTimeEx, OrdersAndCountsSeconds) {
    EXPECT_LT(date("2024-03-05"), date("2024-03-05T00:00:01"));
    EXPECT_EQ(date("0001-01-02T00:01").totalSeconds(), 86460);
    // 1969 years of 365 days, 492 - 19 + 4 leap days.
    EXPECT_EQ(date("1970-01-01T23:59:59").dayNumber(), 719162);
    EXPECT_EQ(DateTimeEx::fromTotalSeconds(86461), DateTimeEx(1, 1, 2, 0, 1, 1));
    EXPECT_EQ(DateTimeEx::fromTotalSeconds(-1), DateTimeEx()) << "cut to the calendar";
    EXPECT_EQ(DateTimeEx::fromTotalSeconds(kMost).toString(), "9999-12-31T23:59:59");
}

}  // namespace
}  // namespace VEXA
