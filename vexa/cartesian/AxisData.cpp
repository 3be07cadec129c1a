#include "vexa/cartesian/AxisData.h"

#include <algorithm>

#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

/// In single precision, as all arithmetic of an axis.
Value number(double value) noexcept { return Value(static_cast<double>(Math::toFloat(value))); }

}  // namespace

ValueKind KindCount::winner() const noexcept {
    const auto [none, numbers, dates, texts] = counts_;
    if (texts > numbers && texts > dates) return ValueKind::Text;
    return dates > numbers ? ValueKind::Date : ValueKind::Number;
}

bool isKept(ValueKind kind, ValueKind axis) noexcept {
    const bool isChoosy = axis == ValueKind::Number || axis == ValueKind::Date;
    return !isChoosy || kind == axis || kind == ValueKind::None;
}

void AxisData::addText(const Value& value) {
    if (kind_ != ValueKind::Text || value.isNone()) return;
    if (value.getKind() == ValueKind::Text) {
        texts_.add(value);
    } else {
        texts_.add(asText(value));
    }
}

void AxisData::addExtreme(const Value& value) noexcept {
    if (value.getKind() != kind_) return;
    if (kind_ == ValueKind::Number) addNumber(value.getFloat());
    if (kind_ == ValueKind::Date) addDate(value);
}

void AxisData::addNumber(float number) noexcept {
    min_ = std::min(min_, number);
    max_ = std::max(max_, number);
}

void AxisData::addDate(const Value& date) noexcept {
    if (dates_.min.isNone() || date.getDate() < dates_.min.getDate()) dates_.min = date;
    if (dates_.max.isNone() || date.getDate() > dates_.max.getDate()) dates_.max = date;
}

AxisRange AxisData::numericRange(const AxisUnits& unit) const {
    float min = Math::toFloat(Util::adjustValueRange(min_));
    float max = Math::toFloat(Util::adjustValueRange(max_));
    if (unit.getType() == AxisUnitsType::Number) Util::adjustValueRange(min, max, unit.getNumber());
    return {number(min), number(max)};
}

AxisRange AxisData::range(const AxisUnits& unit) const {
    switch (kind_) {
        case ValueKind::Number:
            return numericRange(unit);
        case ValueKind::Date:
            return dates_;
        case ValueKind::Text:
            if (texts_.size() > 0) return {texts_.values().front(), texts_.values().back()};
            break;
        case ValueKind::None:
            break;
    }
    return {};
}

AxisRange usableBounds(const AxisRange& given, ValueKind axis) {
    AxisRange usable = given;
    if (!isKept(given.min.getKind(), axis)) usable.min = Value();
    if (!isKept(given.max.getKind(), axis)) usable.max = Value();
    return usable;
}

bool isReversed(const AxisRange& range) noexcept {
    if (range.min.getKind() != range.max.getKind()) return false;
    return range.min.getDouble() > range.max.getDouble() || range.min.getDate() > range.max.getDate();
}

AxisRange boundedRange(const AxisRange& data, const AxisRange& given) {
    AxisRange range = data;
    if (!given.min.isNone()) range.min = given.min;
    if (!given.max.isNone()) range.max = given.max;
    if (range.min.getKind() == ValueKind::Number && range.min.getFloat() > range.max.getFloat())
        range.max = number(static_cast<double>(range.min.getFloat()) + data.max.getFloat());
    return range;
}

void StackedTotals::add(const Value& category, float value) {
    const std::size_t position = categories_.add(category);
    if (position == totals_.size()) totals_.emplace_back();
    float& total = value > 0 ? totals_[position].positive : totals_[position].negative;
    if (value != 0) total = Math::toFloat(static_cast<double>(total) + value);  // the float sum, but never infinite
}

float StackedTotals::find(const Value& category, bool positive) const noexcept {
    const std::size_t position = categories_.find(category);
    if (position == ValueIndex::kNone) return 0;
    return positive ? totals_[position].positive : totals_[position].negative;
}

}  // namespace VEXA
