#include "vexa/support/core/DateTimeEx.h"

#include <gtest/gtest.h>

#include <limits>

namespace VEXA {
namespace {

DateTimeEx date(std::string_view text) { return DateTimeEx::parse(text).value(); }

TEST(DateTimeEx, ReadsIsoDates) {
    struct Case {
        const char* text;
        const char* expected;  ///< nullptr: no date
        const char* why;
    };
    const Case cases[] = {
        {"2024-03-05", "2024-03-05", ""},
        {"2024-03-05T14:30:00", "2024-03-05T14:30:00", ""},
        {"2024-03-05T14:30", "2024-03-05T14:30:00", "seconds are optional"},
        {"2024-03-05T14:30Z", "2024-03-05T14:30:00", "so they are before the Z"},
        {"2024-03-05T00:00:01Z", "2024-03-05T00:00:01", ""},
        {"2024-03-05T00:00:00", "2024-03-05", "a midnight time is not written"},
        {"2024-03-05T23:59:59", "2024-03-05T23:59:59", "the last second"},
        {"0001-01-01", "0001-01-01", "the first day; the year keeps its zeros"},
        {"9999-12-31T23:59:59", "9999-12-31T23:59:59", "the last second of the calendar"},
        {"2024-02-29", "2024-02-29", "leap year"},
        {"2000-02-29", "2000-02-29", "divisible by 400"},
        {"2023-02-29", nullptr, "common year"},
        {"1900-02-29", nullptr, "divisible by 100 only"},
        {"2024-04-31", nullptr, "April has 30 days"},
        {"2024-13-01", nullptr, "month 13"},
        {"2024-00-01", nullptr, "month 0"},
        {"2024-01-00", nullptr, "day 0"},
        {"0000-01-01", nullptr, "there is no year 0"},
        {"2024-03-05T24:00", nullptr, "midnight is 00:00 of the next day"},
        {"2024-03-05T12:60", nullptr, ""},
        {"2024-03-05T12:00:60", nullptr, "leap seconds are unknown"},
        {"2024-3-05", nullptr, "two digits for the month"},
        {"2024-03-5", nullptr, "and for the day"},
        {"24-03-05", nullptr, "four for the year"},
        {"12024-03-05", nullptr, "not five"},
        {"-2024-03-05", nullptr, ""},
        {"2024-+3-05", nullptr, "a sign is no digit"},
        {"20240305", nullptr, "that is a number"},
        {"2024-03", nullptr, ""},
        {"2024-03-05 ", nullptr, "trailing blank"},
        {"2024-03-05Z", nullptr, "a zone belongs to a time"},
        {"2024-03-05T", nullptr, ""},
        {"2024-03-05T14", nullptr, ""},
        {"2024-03-05T14:30:", nullptr, ""},
        {"2024-03-05T14:30:00.5", nullptr, "no fractions"},
        {"2024-03-05T14:30+01:00", nullptr, "no zones"},
        {"2024-03-05T14:30ZZ", nullptr, ""},
        {"2024-03-05 14:30", nullptr, "T, not a blank"},
        {"2024/03/05", nullptr, ""},
        {"", nullptr, ""},
    };
    for (const Case& c : cases) {
        const auto read = DateTimeEx::parse(c.text);
        ASSERT_EQ(read.has_value(), c.expected != nullptr) << c.text << ' ' << c.why;
        if (read) {
            EXPECT_EQ(read->toString(), c.expected) << c.text << ' ' << c.why;
        }
    }
}

TEST(DateTimeEx, TellsItsFields) {
    const DateTimeEx value(2024, 12, 31, 23, 58, 59);
    EXPECT_EQ(value.getYear(), 2024);
    EXPECT_EQ(value.getMonth(), 12);
    EXPECT_EQ(value.getDay(), 31);
    EXPECT_EQ(value.getHour(), 23);
    EXPECT_EQ(value.getMinute(), 58);
    EXPECT_EQ(value.getSecond(), 59);
}

TEST(DateTimeEx, NumbersDays) {
    EXPECT_EQ(date("0001-01-01").dayNumber(), 0);
    // 1969 years of 365 days, 492 - 19 + 4 leap days.
    EXPECT_EQ(date("1970-01-01T23:59:59").dayNumber(), 719162);
    // 24 cycles of 146097 days, 399 years of 365 days, 99 - 3 leap days, less one: the first day has number 0.
    EXPECT_EQ(date("9999-12-31").dayNumber(), 3652058);
}

TEST(DateTimeEx, WalksEveryDayOfTheCalendar) {
    int year = 1;
    int month = 1;
    int day = 1;
    for (std::optional<DateTimeEx> at = DateTimeEx(); at; at = at->plusDays(1)) {
        ASSERT_TRUE(at->getYear() == year && at->getMonth() == month && at->getDay() == day) << at->toString();
        if (++day > DateTimeEx::daysInMonth(year, month)) {
            day = 1;
            if (++month > 12) {
                month = 1;
                ++year;
            }
        }
    }
    EXPECT_EQ(year, 10000) << "the walk ends behind the last day";
}

TEST(DateTimeEx, MovesByDays) {
    struct Case {
        const char* from;
        std::int64_t days;
        const char* expected;  ///< nullptr: leaves the calendar
        const char* why;
    };
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    const Case cases[] = {
        {"2024-02-28", 2, "2024-03-01", "over a leap day"},
        {"2100-02-28", 1, "2100-03-01", "a leap century that is none"},
        {"2024-01-01", -1, "2023-12-31", "backwards over a year"},
        {"2024-03-05T14:30", 0, "2024-03-05", "the time goes, also with a step of none"},
        {"9999-12-31T12:00", 1, nullptr, "behind the last day"},
        {"0001-01-01", -1, nullptr, "before the first"},
        {"2024-01-01", kMost, nullptr, "does not overflow"},
        {"2024-01-01", -kMost - 1, nullptr, "nor here"},
    };
    for (const Case& c : cases) {
        const auto moved = date(c.from).plusDays(c.days);
        ASSERT_EQ(moved.has_value(), c.expected != nullptr) << c.why;
        if (moved) {
            EXPECT_EQ(moved->toString(), c.expected) << c.why;
        }
    }
    EXPECT_EQ(date("2024-02-29T14:30").monthStart().toString(), "2024-02-01");
}

TEST(DateTimeEx, CountsDaysAndMonthsBetween) {
    struct Case {
        const char* a;
        const char* b;
        std::int64_t days;
        std::int64_t months;
        const char* why;
    };
    const Case cases[] = {
        {"2024-01-31", "2024-03-01", 30, 2, "months are those of the calendar, not of 30 days"},
        {"2024-01-01", "2024-01-31", 30, 0, "30 days within one month"},
        {"1900-02-28", "1900-03-01", 1, 1, "1900 was common"},
        {"2000-02-28", "2000-03-01", 2, 1, "2000 was a leap year"},
        {"2023-12-31T23:59", "2024-01-01T00:00", 1, 1, "one minute apart, on two calendar days"},
        {"2024-01-01T00:01", "2024-01-01T23:59", 0, 0, "the time of day plays no part"},
        {"2024-01-01T23:59", "2024-01-02T00:00", 1, 0, "a day, though less than 24 hours"},
        {"2022-11-15", "2024-02-01", 443, 15, "16 days of November, 31, 365 and 31 days"},
        {"2024-03-01", "2024-01-31", 0, 0, "the second date is the earlier one"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(DateTimeEx::dayDiff(date(c.a), date(c.b)), c.days) << c.why;
        EXPECT_EQ(DateTimeEx::monthDiff(date(c.a), date(c.b)), c.months) << c.why;
    }
}

TEST(DateTimeEx, OrdersAndCountsSeconds) {
    EXPECT_LT(date("2024-03-05"), date("2024-03-05T00:00:01"));
    EXPECT_GT(date("2024-03-05"), date("1999-12-31T23:59:59"));
    const DateTimeEx value = date("2024-03-05T14:30:07");
    EXPECT_EQ(DateTimeEx::fromTotalSeconds(value.totalSeconds()), value);
    EXPECT_EQ(date("0001-01-02T00:01").totalSeconds(), 86460);
    EXPECT_EQ(DateTimeEx::fromTotalSeconds(-1), DateTimeEx()) << "cut to the calendar";
    EXPECT_EQ(DateTimeEx::fromTotalSeconds(std::numeric_limits<std::int64_t>::max()).toString(), "9999-12-31T23:59:59");
}

}  // namespace
}  // namespace VEXA
