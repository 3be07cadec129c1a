#pragma once

#include "vexa/cartesian/AxisData.h"

namespace VEXA {

/// The values at which an axis has ticks, grid lines and labels, in ascending order.
struct AxisTicks {
    Vector<Value> values;
    double wanted = 0;       ///< how many values the step asks for
    bool isThinned = false;  ///< there is no room for so many: only the first and the last one are there
};

/// What the values of a numeric axis are made of.
struct NumericSteps {
    float min = 0;
    float max = 0;
    float step = 0;       ///< 0 or above
    bool hasMin = false;  ///< the document fixes the end: values are counted from there
    bool hasMax = false;
};

/// Moves the bounds of `steps` onto multiples of the step when the document fixes neither, then takes the values. In
/// single precision, rounded after each addition; a value within a ten-thousandth of a step of zero or of the last
/// value is that. At most `room` of them, 2 or more.
AxisTicks numericTicks(NumericSteps& steps, std::size_t room);

enum class DateUnit : std::uint8_t { Days, Months, Years };

/// The unit that the document gives. Where it gives none, the finest of which no more steps are between the two dates
/// than labels fit; years at last, and for a number.
DateUnit dateUnit(AxisUnitsType given, int labelCount, const DateTimeEx& first, const DateTimeEx& last) noexcept;

/// 00:00:00 of each day, of the first of each month or of each 1 January, from the unit that `first` lies in to the one
/// of `last`, at most `room` of them, 2 or more. None when `last` is the earlier one.
AxisTicks dateTicks(const DateTimeEx& first, const DateTimeEx& last, DateUnit unit, std::size_t room);

}  // namespace VEXA
