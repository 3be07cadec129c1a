#pragma once

#include <cstdint>

#include "vexa/support/core/DateTimeEx.h"

namespace VEXA {

/// A date as the numbers that people write, and what they count from them, in the proleptic Gregorian calendar. A field
/// that a date lacks is -1, a month that it lacks 0. Any number may stand in a field.
struct DateFields {
    static DateFields of(const DateTimeEx& date) noexcept;

    /// 1 for the first of January.
    std::int64_t dayOfYear() const noexcept;
    /// 1 for Sunday to 7 for Saturday.
    int weekday() const noexcept;
    /// Weeks start on Monday and belong to the year of their Thursday. The last days of December count on, also where
    /// that is the first week of the year that follows: 2024-12-31 is in week 53.
    std::int64_t weekOfYear() const noexcept;
    /// Weeks start on Sunday; the first of a month is in week 1.
    std::int64_t weekOfMonth() const noexcept;

    std::int32_t year = -1;
    std::int32_t month = 0;
    std::int32_t day = -1;
    std::int32_t hour = -1;
    std::int32_t minute = -1;
    std::int32_t second = -1;
};

}  // namespace VEXA
