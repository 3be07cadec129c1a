#include "vexa/support/core/DateTimeEx.h"

#include <algorithm>
#include <chrono>

namespace VEXA {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kMinYear = 1;
constexpr int kMaxYear = 9999;
constexpr sys_days kFirstDay = std::chrono::year{kMinYear} / 1 / 1;
constexpr std::int64_t kDays = (sys_days{std::chrono::year{kMaxYear} / 12 / 31} - kFirstDay).count() + 1;

constexpr year_month_day makeDate(int year, int month, int day) noexcept {
    return {std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
            std::chrono::day{static_cast<unsigned>(day)}};
}

year_month_day dateOf(const DateTimeEx& value) noexcept {
    return kFirstDay + days{static_cast<int>(value.dayNumber())};
}

/// Reads fields of fixed width from the front of a text; the first failure makes all that follows fail.
class FieldReader {
public:
    explicit FieldReader(std::string_view text) noexcept : rest_(text) {}

    int number(std::size_t digits) noexcept {
        if (rest_.size() < digits) return fail();
        int result = 0;
        for (const char c : rest_.substr(0, digits)) {
            if (c < '0' || c > '9') return fail();
            result = result * 10 + (c - '0');
        }
        rest_.remove_prefix(digits);
        return result;
    }
    int numberBehind(char separator, std::size_t digits) noexcept { return skip(separator) ? number(digits) : fail(); }
    bool skip(char c) noexcept {
        if (rest_.empty() || rest_.front() != c) return false;
        rest_.remove_prefix(1);
        return true;
    }
    bool isNext(char c) const noexcept { return !rest_.empty() && rest_.front() == c; }
    bool isComplete() const noexcept { return !failed_ && rest_.empty(); }

private:
    int fail() noexcept {
        failed_ = true;
        rest_ = {};
        return 0;
    }

    std::string_view rest_;
    bool failed_ = false;
};

void appendPadded(int value, int width, std::string& out) {
    const std::string digits = std::to_string(value);
    out.append(static_cast<std::size_t>(std::max(0, width - static_cast<int>(digits.size()))), '0').append(digits);
}

}  // namespace

DateTimeEx::DateTimeEx(int year, int month, int day, int hour, int minute, int second) noexcept
    : seconds_((sys_days{makeDate(year, month, day)} - kFirstDay).count() * kSecondsOfDay + hour * 3600 + minute * 60 +
               second) {}

bool DateTimeEx::isValid(int year, int month, int day) noexcept {
    if (year < kMinYear || year > kMaxYear || month < 1 || month > 12) return false;
    return day >= 1 && day <= daysInMonth(year, month);
}

bool DateTimeEx::isLeapYear(int year) noexcept { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DateTimeEx::daysInMonth(int year, int month) noexcept {
    if (month == 2) return isLeapYear(year) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

std::optional<DateTimeEx> DateTimeEx::parse(std::string_view text) noexcept {
    FieldReader reader(text);
    const int year = reader.number(4);
    const int month = reader.numberBehind('-', 2);
    const int day = reader.numberBehind('-', 2);
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (reader.skip('T')) {
        hour = reader.number(2);
        minute = reader.numberBehind(':', 2);
        if (reader.isNext(':')) second = reader.numberBehind(':', 2);
        reader.skip('Z');
    }
    if (!reader.isComplete() || !isValid(year, month, day)) return std::nullopt;
    if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
    return DateTimeEx(year, month, day, hour, minute, second);
}

int DateTimeEx::getYear() const noexcept { return static_cast<int>(dateOf(*this).year()); }
int DateTimeEx::getMonth() const noexcept { return static_cast<int>(static_cast<unsigned>(dateOf(*this).month())); }
int DateTimeEx::getDay() const noexcept { return static_cast<int>(static_cast<unsigned>(dateOf(*this).day())); }
int DateTimeEx::getHour() const noexcept { return static_cast<int>(seconds_ % kSecondsOfDay / 3600); }
int DateTimeEx::getMinute() const noexcept { return static_cast<int>(seconds_ % 3600 / 60); }
int DateTimeEx::getSecond() const noexcept { return static_cast<int>(seconds_ % 60); }

std::optional<DateTimeEx> DateTimeEx::plusDays(std::int64_t count) const noexcept {
    const std::int64_t day = dayNumber();
    if (count < -day || count >= kDays - day) return std::nullopt;
    return fromTotalSeconds((day + count) * kSecondsOfDay);
}

DateTimeEx DateTimeEx::monthStart() const noexcept {
    return fromTotalSeconds((dayNumber() - getDay() + 1) * kSecondsOfDay);
}

std::int64_t DateTimeEx::dayDiff(const DateTimeEx& a, const DateTimeEx& b) noexcept {
    return std::max<std::int64_t>(0, b.dayNumber() - a.dayNumber());
}

std::int64_t DateTimeEx::monthDiff(const DateTimeEx& a, const DateTimeEx& b) noexcept {
    const year_month_day from = dateOf(a);
    const year_month_day to = dateOf(b);
    const auto months = (to.year() / to.month()) - (from.year() / from.month());
    return std::max<std::int64_t>(0, months.count());
}

std::string DateTimeEx::toString() const {
    const year_month_day date = dateOf(*this);
    std::string result;
    appendPadded(static_cast<int>(date.year()), 4, result);
    appendPadded(static_cast<int>(static_cast<unsigned>(date.month())), 2, result += '-');
    appendPadded(static_cast<int>(static_cast<unsigned>(date.day())), 2, result += '-');
    if (seconds_ % kSecondsOfDay == 0) return result;
    appendPadded(getHour(), 2, result += 'T');
    appendPadded(getMinute(), 2, result += ':');
    appendPadded(getSecond(), 2, result += ':');
    return result;
}

DateTimeEx DateTimeEx::fromTotalSeconds(std::int64_t seconds) noexcept {
    DateTimeEx result;
    result.seconds_ = std::clamp<std::int64_t>(seconds, 0, kDays * kSecondsOfDay - 1);
    return result;
}

}  // namespace VEXA
