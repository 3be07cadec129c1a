#include "vexa/cartesian/AxisTicks.h"

#include <cmath>

#include "vexa/support/core/Limits.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr float kNear = 1e-4F;  // of a step: what sums of rounded numbers may be off by
constexpr int kMonthsOfYear = 12;

void emit(AxisTicks& ticks, float value) { ticks.values.emplace_back(static_cast<double>(value)); }

/// Whether there may be so many values; otherwise both ends stand for them.
bool hasRoom(AxisTicks& ticks, double wanted, const Value& first, const Value& last) {
    ticks.wanted = wanted;
    ticks.isThinned = wanted > static_cast<double>(Limits::kAxisValues);
    if (ticks.isThinned) ticks.values = {first, last};
    return !ticks.isThinned;
}

/// The values from `first` on, a step apart, that lie below `end`.
void emitBelow(AxisTicks& ticks, float first, float end, float step) {
    const float near = kNear * step;
    emit(ticks, first);
    for (float value = first, next = first + step; next > value && next < end - near; next = value + step) {
        value = std::fabs(next) < near ? 0 : next;  // beyond 2^24 steps a sum stays where it is: next > value
        emit(ticks, value);
    }
}

/// The smallest of `max`, `max` - step, … that is not below `min`.
float firstBefore(float max, float min, float step) {
    const float near = kNear * step;
    float value = max;
    for (float next = max - step; next < value && next >= min - near; next = value - step)
        value = std::fabs(next) < near ? 0 : next;
    return std::fmax(value, min);
}

DateTimeEx monthOf(std::int64_t month) noexcept {
    return {static_cast<int>(month / kMonthsOfYear), static_cast<int>(month % kMonthsOfYear) + 1, 1};
}

std::int64_t monthNumber(const DateTimeEx& date) noexcept {
    return std::int64_t{date.getYear()} * kMonthsOfYear + date.getMonth() - 1;
}

/// The number of a unit in the calendar, and the date that it starts with.
std::int64_t unitNumber(const DateTimeEx& date, DateUnit unit) noexcept {
    if (unit == DateUnit::Days) return date.dayNumber();
    return unit == DateUnit::Months ? monthNumber(date) : date.getYear();
}

DateTimeEx unitStart(std::int64_t number, DateUnit unit) noexcept {
    if (unit == DateUnit::Days) return *DateTimeEx().plusDays(number);
    return unit == DateUnit::Months ? monthOf(number) : DateTimeEx(static_cast<int>(number), 1, 1);
}

}  // namespace

AxisTicks numericTicks(NumericSteps& steps) {
    auto& [min, max, step, hasMin, hasMax] = steps;
    if (step < max - min && !hasMin && !hasMax) Util::adjustValueRange(min, max, step);
    AxisTicks ticks;
    const double count = step > 0 ? (static_cast<double>(max) - min) / step + 1 : 1;
    if (!hasRoom(ticks, count, Value(static_cast<double>(min)), Value(static_cast<double>(max)))) return ticks;
    const float first = hasMax && !hasMin ? firstBefore(max, min, step) : min;
    emitBelow(ticks, first, max, step);
    if (!hasMin && first != max) emit(ticks, max);
    return ticks;
}

DateUnit dateUnit(AxisUnitsType given, int labelCount, const DateTimeEx& first, const DateTimeEx& last) noexcept {
    const bool isAutomatic = given == AxisUnitsType::Automatic;
    if (given == AxisUnitsType::Days || (isAutomatic && labelCount >= DateTimeEx::dayDiff(first, last)))
        return DateUnit::Days;
    if (given == AxisUnitsType::Months || (isAutomatic && labelCount >= DateTimeEx::monthDiff(first, last)))
        return DateUnit::Months;
    return DateUnit::Years;
}

AxisTicks dateTicks(const DateTimeEx& first, const DateTimeEx& last, DateUnit unit) {
    AxisTicks ticks;
    const std::int64_t begin = unitNumber(first, unit);
    const std::int64_t end = unitNumber(last, unit);
    if (!hasRoom(ticks, static_cast<double>(end - begin + 1), Value(unitStart(begin, unit)),
                 Value(unitStart(end, unit))))
        return ticks;
    for (std::int64_t number = begin; number <= end; ++number) ticks.values.emplace_back(unitStart(number, unit));
    return ticks;
}

}  // namespace VEXA
