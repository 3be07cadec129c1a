#include "vexa/util/DateFields.h"

namespace VEXA {

namespace {

constexpr int kDaysOfWeek = 7;

std::int64_t floorDivide(std::int64_t number, std::int64_t divisor) noexcept {
    return number / divisor - (number % divisor < 0 ? 1 : 0);
}

/// Days of a common year before the month; -1 for what is no month.
int daysBefore(std::int32_t month) noexcept {
    constexpr int kDays[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return month < 1 || month > 12 ? -1 : kDays[month - 1];
}

/// 0 for Sunday to 6 for Saturday. The year 1 starts on a Monday, and every year moves the weekdays on by one, a leap
/// year by two.
int weekdayOf(std::int64_t year, std::int64_t dayOfYear) noexcept {
    const std::int64_t years = year - 1;
    const std::int64_t leapYears = floorDivide(years, 4) - floorDivide(years, 100) + floorDivide(years, 400);
    const std::int64_t days = years + leapYears + dayOfYear;
    return static_cast<int>(days - floorDivide(days, kDaysOfWeek) * kDaysOfWeek);
}

/// The week of ISO 8601; 0 for a day in the last week of the year before.
std::int64_t isoWeek(std::int64_t year, std::int64_t dayOfYear) noexcept {
    const int weekday = weekdayOf(year, dayOfYear);
    return floorDivide(dayOfYear - (weekday == 0 ? kDaysOfWeek : weekday) + 10, kDaysOfWeek);
}

}  // namespace

DateFields DateFields::of(const DateTimeEx& date) noexcept {
    return {date.getYear(), date.getMonth(), date.getDay(), date.getHour(), date.getMinute(), date.getSecond()};
}

std::int64_t DateFields::dayOfYear() const noexcept {
    const int leapDay = month > 2 && DateTimeEx::isLeapYear(year) ? 1 : 0;
    return static_cast<std::int64_t>(day) + daysBefore(month) + leapDay;
}

int DateFields::weekday() const noexcept { return weekdayOf(year, dayOfYear()) + 1; }

std::int64_t DateFields::weekOfYear() const noexcept {
    const std::int64_t week = isoWeek(year, dayOfYear());
    if (week > 0) return week;
    return isoWeek(static_cast<std::int64_t>(year) - 1, 365);  // in a leap year the 366th is in the same week
}

std::int64_t DateFields::weekOfMonth() const noexcept {
    return floorDivide(static_cast<std::int64_t>(day) - weekday() + 13, kDaysOfWeek);
}

}  // namespace VEXA
