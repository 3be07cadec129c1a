#pragma once

#include "vexa/cartesian/ValueIndex.h"
#include "vexa/support/values/AxisUnits.h"

namespace VEXA {

/// Counts the kinds of the values that an axis would show.
class KindCount {
public:
    void add(ValueKind kind) noexcept { ++counts_[static_cast<std::size_t>(kind)]; }
    /// Text when there are more texts than numbers and more than dates; else Date when there are more dates than
    /// numbers; else Number.
    ValueKind winner() const noexcept;

private:
    std::uint64_t counts_[4] = {};
};

/// Both ends of an axis; both are no value when nothing is known of them.
struct AxisRange {
    Value min;
    Value max;
    friend bool operator==(const AxisRange&, const AxisRange&) = default;
};

/// Whether a value of that kind may stay in the data of an axis: numbers or dates keep their own kind, and points
/// without value, which draw nothing; an axis of texts keeps all.
bool isKept(ValueKind kind, ValueKind axis) noexcept;

/// What the data says of one axis: the extremes of its numbers or dates, or its texts.
class AxisData {
public:
    explicit AxisData(ValueKind kind) noexcept : kind_(kind) {}

    ValueKind kind() const noexcept { return kind_; }
    /// Adds the value's own text to those of a text axis; no value is no text. Nothing on other axes.
    void addText(const Value& value);
    /// Widens the extremes of an axis of numbers or dates by a value of that kind. Nothing on other axes.
    void addExtreme(const Value& value) noexcept;
    void addNumber(float number) noexcept;

    /// The texts in the order of their first appearance.
    const ValueIndex& texts() const noexcept { return texts_; }
    /// Numbers: zero included, both ends rounded outward, onto multiples of `unit` where that is a number. Dates: the
    /// earliest and the latest. Texts: the first and the last. No values without data.
    AxisRange range(const AxisUnits& unit) const;

private:
    void addDate(const Value& date) noexcept;
    AxisRange numericRange(const AxisUnits& unit) const;

    ValueKind kind_;
    float min_ = 0;
    float max_ = 0;
    AxisRange dates_;
    ValueIndex texts_;
};

/// The ends that an axis of that kind can show, see isKept.
AxisRange usableBounds(const AxisRange& given, ValueKind axis);
/// Whether both ends are numbers, or dates, of which the first is the larger one.
bool isReversed(const AxisRange& range) noexcept;

/// The range with the ends that the document gives (no value: not given). A smallest number above the largest moves the
/// largest up: above the smallest by as much as the data's largest is above 0.
AxisRange boundedRange(const AxisRange& data, const AxisRange& given);

/// Sums of the values at each category, positive and negative ones apart.
class StackedTotals {
public:
    void add(const Value& category, float value);
    /// 0 for an unknown category. Finite.
    float find(const Value& category, bool positive) const noexcept;

private:
    struct Total {
        float positive = 0;
        float negative = 0;
    };
    ValueIndex categories_;
    Vector<Total> totals_;
};

}  // namespace VEXA
