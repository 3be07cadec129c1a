#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace VEXA {

/// A date with a time of day in the proleptic Gregorian calendar, years 1 to 9999, to the second. No time zone.
class DateTimeEx {
public:
    constexpr DateTimeEx() noexcept = default;
    /// REQUIRES: isValid(year, month, day) and a time of day from 00:00:00 to 23:59:59.
    DateTimeEx(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) noexcept;

    static bool isValid(int year, int month, int day) noexcept;
    static bool isLeapYear(int year) noexcept;
    static int daysInMonth(int year, int month) noexcept;
    /// ISO 8601: `2024-03-05` or `2024-03-05T14:30:00`, seconds optional, a final `Z` allowed; nothing else.
    static std::optional<DateTimeEx> parse(std::string_view text) noexcept;

    int getYear() const noexcept;
    int getMonth() const noexcept;
    int getDay() const noexcept;
    int getHour() const noexcept;
    int getMinute() const noexcept;
    int getSecond() const noexcept;

    /// Days since 0001-01-01.
    std::int64_t dayNumber() const noexcept { return seconds_ / kSecondsOfDay; }
    /// 00:00:00 of the day so many days later; nothing when that leaves the calendar.
    std::optional<DateTimeEx> plusDays(std::int64_t days) const noexcept;
    /// 00:00:00 of the first day of this month.
    DateTimeEx monthStart() const noexcept;

    /// Calendar days from `a` to `b`, the time of day left out; 0 when `b` is earlier.
    static std::int64_t dayDiff(const DateTimeEx& a, const DateTimeEx& b) noexcept;
    /// Calendar months from the month of `a` to the month of `b`; 0 when `b` is earlier.
    static std::int64_t monthDiff(const DateTimeEx& a, const DateTimeEx& b) noexcept;

    /// ISO form, without a midnight time.
    std::string toString() const;

    friend constexpr auto operator<=>(const DateTimeEx&, const DateTimeEx&) = default;

    /// Seconds since 0001-01-01T00:00:00, and back; what lies outside the calendar is cut to it.
    std::int64_t totalSeconds() const noexcept { return seconds_; }
    static DateTimeEx fromTotalSeconds(std::int64_t seconds) noexcept;

private:
    static constexpr std::int64_t kSecondsOfDay = 86400;
    std::int64_t seconds_ = 0;
};

}  // namespace VEXA
