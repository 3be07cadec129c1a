#pragma once

#include "vexa/cartesian/AxisData.h"

namespace VEXA {

/// The scale of one axis, computed once for an area size: its kind, its range, its values, and where a value lies.
/// Lengths and coordinates are px along the axis; on a vertical axis the smallest value has the largest coordinate.
class AxisScale {
public:
    struct Traits {
        ValueKind kind = ValueKind::None;
        bool isVertical = false;
        bool isBetweenTicks = false;  ///< values lie in the middle of equal slots, ticks between the slots
    };

    AxisScale() = default;
    /// `texts`: the index that the values of a text axis come from; it must outlive the scale.
    AxisScale(const Traits& traits, const AxisRange& range, Vector<Value> values, const ValueIndex& texts);

    const Vector<Value>& values() const noexcept { return values_; }
    /// Which part of the axis lies below the value: 0 at the smallest value, 1 at the largest. 0 on an axis without
    /// extent, and for a text that the axis does not have. Constant time.
    float relativePosition(const Value& value) const noexcept;
    /// Coordinate of a value on an axis of that length. Constant time.
    float position(float length, const Value& value) const noexcept;
    /// The coordinates of the axis values: those of their labels, and those of their ticks and grid lines, which lie
    /// half a slot behind the labels when these are between ticks.
    Vector<float> labelPositions(float length) const;
    Vector<float> tickPositions(float length) const;
    /// The length divided among the values; on ticks, among the values and one more. 0 without values.
    float slotWidth(float length) const noexcept;
    /// Where the other axis crosses: at zero, else at the smallest value.
    Value crossValue() const noexcept;
    float crossPosition(float length) const noexcept;

private:
    float numericPosition(float value) const noexcept;
    float datePosition(const DateTimeEx& value) const noexcept;
    float textPosition(std::size_t index) const noexcept;
    float coordinate(float length, float relative) const noexcept;

    Traits traits_;
    AxisRange range_;
    Vector<Value> values_;
    const ValueIndex* texts_ = nullptr;
};

}  // namespace VEXA
