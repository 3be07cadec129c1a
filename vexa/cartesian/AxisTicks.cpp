#include "vexa/cartesian/AxisTicks.h"

#include <charconv>
#include <cmath>

#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr float kNear = 1e-4F;  // of a step: what sums of rounded numbers may be off by
constexpr int kMonthsOfYear = 12;

void emit(AxisTicks& ticks, float value) { ticks.values.emplace_back(static_cast<double>(value)); }

/// Whether there may be so many values; otherwise both ends stand for them.
bool hasRoom(AxisTicks& ticks, std::size_t room, double wanted, const Value& first, const Value& last) {
    ticks.wanted = wanted;
    ticks.isThinned = wanted > static_cast<double>(room);
    if (ticks.isThinned) ticks.values = {first, last};
    return !ticks.isThinned;
}

/// The decimal that people write for a float: 0.1, not 0.100000001.
double decimalOf(float value) noexcept {
    char text[32];
    const char* const end = std::to_chars(text, std::end(text), value).ptr;
    double decimal = 0;
    std::from_chars(text, end, decimal);
    return decimal;
}

/// The number that a sum of rounded steps misses by a hair. Near zero the hair would show in a label.
float straightened(float sum, double meant, float step) noexcept {
    const float near = kNear * step;
    const float exact = Math::toFloat(meant);
    const float value = std::fabs(sum - exact) < near ? exact : sum;
    return std::fabs(value) < near ? 0 : value;
}

/// The values from `first` on, a step apart, that lie below `end`.
void emitBelow(AxisTicks& ticks, float first, float end, float step) {
    const float near = kNear * step;
    const double start = decimalOf(first);
    const double by = decimalOf(step);
    double count = 1;
    emit(ticks, first);
    for (float value = first, next = first + step; next > value && next < end - near; next = value + step, ++count) {
        value = straightened(next, start + count * by, step);  // beyond 2^24 steps a sum stays: next > value
        emit(ticks, value);
    }
}

/// The smallest of `max`, `max` - step, … that is not below `min`.
float firstBefore(float max, float min, float step) {
    const float near = kNear * step;
    const double start = decimalOf(max);
    const double by = decimalOf(step);
    double count = 1;
    float value = max;
    for (float next = max - step; next < value && next >= min - near; next = value - step, ++count)
        value = straightened(next, start - count * by, step);
    return std::fmax(value, min);
}

/// Moves both ends onto multiples of the step, or the larger one a number of steps away from the smaller one.
void snap(float& min, float& max, float step) {
    Util::adjustValueRange(min, max, step);
    const double by = decimalOf(step);
    if (min > 0) return;
    min = straightened(min, std::round(min / by) * by, step);
    max = straightened(max, std::round(max / by) * by, step);
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

AxisTicks numericTicks(NumericSteps& steps, std::size_t room) {
    auto& [min, max, step, hasMin, hasMax] = steps;
    if (step < max - min && !hasMin && !hasMax) snap(min, max, step);
    AxisTicks ticks;
    const double count = step > 0 ? (static_cast<double>(max) - min) / step + 1 : 1;
    if (!hasRoom(ticks, room, count, Value(static_cast<double>(min)), Value(static_cast<double>(max)))) return ticks;
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

AxisTicks dateTicks(const DateTimeEx& first, const DateTimeEx& last, DateUnit unit, std::size_t room) {
    AxisTicks ticks;
    const std::int64_t begin = unitNumber(first, unit);
    const std::int64_t end = unitNumber(last, unit);
    if (!hasRoom(ticks, room, static_cast<double>(end - begin + 1), Value(unitStart(begin, unit)),
                 Value(unitStart(end, unit))))
        return ticks;
    for (std::int64_t number = begin; number <= end; ++number) ticks.values.emplace_back(unitStart(number, unit));
    return ticks;
}

}  // namespace VEXA
