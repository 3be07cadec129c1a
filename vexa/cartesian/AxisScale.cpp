#include "vexa/cartesian/AxisScale.h"

#include <cmath>

#include "vexa/support/core/Math.h"

namespace VEXA {

AxisScale::AxisScale(const Traits& traits, const AxisRange& range, Vector<Value> values, const ValueIndex& texts)
    : traits_(traits), range_(range), values_(std::move(values)), texts_(&texts) {}

float AxisScale::relativePosition(const Value& value) const noexcept {
    switch (traits_.kind) {
        case ValueKind::Number:
            return numericPosition(value.getFloat());
        case ValueKind::Date:
            return datePosition(value.getDate());
        case ValueKind::Text:
            return textPosition(value.getKind() == ValueKind::Text ? texts_->find(value) : texts_->find(asText(value)));
        case ValueKind::None:
            break;
    }
    return 0;
}

float AxisScale::numericPosition(float value) const noexcept {
    const float min = range_.min.getFloat();
    const float max = range_.max.getFloat();
    const float span = max - min;
    if (std::isinf(span)) return Math::toFloat((static_cast<double>(value) - min) / (static_cast<double>(max) - min));
    return span == 0 ? 0 : (value - min) / span;
}

float AxisScale::datePosition(const DateTimeEx& value) const noexcept {
    const DateTimeEx min = range_.min.getDate();
    const DateTimeEx max = range_.max.getDate();
    if (value == min) return 0;
    if (value == max) return 1;
    const std::int64_t span = DateTimeEx::dayDiff(min, max);
    return span == 0 ? 0 : static_cast<float>(DateTimeEx::dayDiff(min, value)) / static_cast<float>(span);
}

float AxisScale::textPosition(std::size_t index) const noexcept {
    const std::size_t count = texts_->size();
    if (index == ValueIndex::kNone || count < 2) return 0;
    return static_cast<float>(index) / static_cast<float>(count - 1);
}

float AxisScale::coordinate(float length, float relative) const noexcept {
    const float slot = traits_.isBetweenTicks ? slotWidth(length) : 0;
    const float position = (length - slot) * relative + slot / 2;
    return traits_.isVertical ? length - position : position;
}

float AxisScale::position(float length, const Value& value) const noexcept {
    return coordinate(length, relativePosition(value));
}

Vector<float> AxisScale::labelPositions(float length) const {
    Vector<float> positions;
    positions.reserve(values_.size());
    for (std::size_t i = 0; i < values_.size(); ++i) {
        const bool isText = traits_.kind == ValueKind::Text;  // a text's place in the list is known
        positions.push_back(coordinate(length, isText ? textPosition(i) : relativePosition(values_[i])));
    }
    return positions;
}

Vector<float> AxisScale::tickPositions(float length) const {
    Vector<float> positions = labelPositions(length);
    if (!traits_.isBetweenTicks) return positions;
    const float shift = slotWidth(length) * 0.5F;
    for (float& position : positions) position += shift;
    return positions;
}

float AxisScale::slotWidth(float length) const noexcept {
    if (values_.empty()) return 0;
    return length / static_cast<float>(traits_.isBetweenTicks ? values_.size() : values_.size() + 1);
}

Value AxisScale::crossValue() const noexcept {
    const bool isAtZero = traits_.kind == ValueKind::Number && !(range_.min.getFloat() > 0);
    return isAtZero ? Value(0.0) : range_.min;
}

float AxisScale::crossPosition(float length) const noexcept {
    const Value value = crossValue();
    const bool isNumber = traits_.kind == ValueKind::Number;
    if (!isNumber || value.getFloat() == range_.min.getFloat()) return traits_.isVertical ? length : 0;
    if (value.getFloat() == range_.max.getFloat()) return traits_.isVertical ? 0 : length;
    return position(length, value);
}

}  // namespace VEXA
