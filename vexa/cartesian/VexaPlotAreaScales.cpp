#include <algorithm>

#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

// The scales of both axes for the present size of the plot area, and what they answer.

namespace VEXA {

namespace {

constexpr char kSource[] = "VexaPlotArea";
constexpr int kUnitNotAboveZero = 34066;
constexpr int kUnitTooSmall = 34067;
constexpr int kThinnedOut = 34068;
constexpr int kPictureIsFull = 34075;
constexpr std::size_t kCornersOfValue = 4;  // a tick mark and a grid line

String nameOf(const VexaAxisObject& axis) { return axis.getTypeInfo()->getElementName(); }

String printed(const AxisUnits& unit) { return String(ValueTraits<AxisUnits>::print(unit)); }

/// How many values an axis may generate: they cost the document nothing. Both ends are always there.
std::size_t roomForValues(const VexaRenderContext& context) {
    return std::clamp<std::size_t>(context.polygonsLeft(kCornersOfValue), 2, Limits::kAxisValues);
}

}  // namespace

int VexaPlotArea::getMaxLabelCount(VexaRenderContext& context, bool category) {
    resolveOrientations();
    VexaAxisObject& axis = getAxis(category);
    const SizeF area = getAreaSize(context);
    const SizeF label = axis.getMaxLabelSize(context);
    const float extent = axis.isVertical() ? label.height : label.width;
    if (extent == 0) return 0;
    return Math::toInt((axis.isVertical() ? area.height : area.width) / extent);
}

const AxisScale& VexaPlotArea::getScale(VexaRenderContext& context, bool category) {
    if (!isScaled_ || !(getAreaSize(context) == scaledSize_)) computeScales(context);
    return scales_[slot(category)];
}

// Both at once, so that no axis is seen before and after its range was moved onto its values.
void VexaPlotArea::computeScales(VexaRenderContext& context) {
    resolveOrientations();
    for (const bool category : {false, true}) {
        getAxis(category).dropLabels();
        scales_[slot(category)] = makeScale(context, category);
    }
    scaledSize_ = getAreaSize(context);
    isScaled_ = true;
}

AxisScale VexaPlotArea::makeScale(VexaRenderContext& context, bool category) {
    VexaAxisObject& axis = getAxis(category);
    checkUnit(axis);
    Vector<Value> values = makeAxisValues(context, category);
    const bool isBetweenTicks = axis.getPlacement() == DisplayValPlacement::BetweenTicks;
    return {{getDataKind(category), axis.isVertical(), isBetweenTicks},
            axis.getRange(),
            std::move(values),
            getData(category).texts()};
}

Vector<Value> VexaPlotArea::makeAxisValues(VexaRenderContext& context, bool category) {
    switch (getDataKind(category)) {
        case ValueKind::Number:
            return makeNumericValues(context, category);
        case ValueKind::Date:
            return makeDateValues(context, category);
        case ValueKind::Text:
            return getData(category).texts().values();
        case ValueKind::None:
            break;
    }
    return {};
}

Vector<Value> VexaPlotArea::makeNumericValues(VexaRenderContext& context, bool category) {
    VexaAxisObject& axis = getAxis(category);
    const bool isGiven = axis.getUnit().getType() == AxisUnitsType::Number;
    const AxisRange range = axis.getRange();
    NumericSteps steps{range.min.getFloat(), range.max.getFloat(), axis.getUnit().getNumber(), axis.hasMin(),
                       axis.hasMax()};
    if (!isGiven) steps.step = Util::getFloatMinUnit(steps.max - steps.min, getMaxLabelCount(context, category));
    AxisTicks ticks = numericTicks(steps, roomForValues(context));
    takeValues(context, axis, ticks, isGiven);
    if (steps.min != range.min.getFloat() || steps.max != range.max.getFloat())
        axis.setRange({Value(static_cast<double>(steps.min)), Value(static_cast<double>(steps.max))});
    return std::move(ticks.values);
}

Vector<Value> VexaPlotArea::makeDateValues(VexaRenderContext& context, bool category) {
    VexaAxisObject& axis = getAxis(category);
    const AxisRange& range = axis.getRange();
    if (range.min.isNone() || range.max.isNone()) return {};
    const DateTimeEx first = range.min.getDate();
    const DateTimeEx last = range.max.getDate();
    const AxisUnitsType given = axis.getUnit().getType();
    const bool isGiven = given != AxisUnitsType::Automatic;
    const int labelCount = isGiven ? 0 : getMaxLabelCount(context, category);
    AxisTicks ticks = dateTicks(first, last, dateUnit(given, labelCount, first, last), roomForValues(context));
    takeValues(context, axis, ticks, isGiven);
    return std::move(ticks.values);
}

void VexaPlotArea::checkUnit(VexaAxisObject& axis) {
    const AxisUnits& unit = axis.getUnit();
    if (unit.getType() != AxisUnitsType::Number || unit.getNumber() > 0) return;
    raise(Exception(kUnitNotAboveZero, {printed(unit), nameOf(axis)}), kSource, __LINE__, axis.getPlace());
}

void VexaPlotArea::takeValues(VexaRenderContext& context, VexaAxisObject& axis, const AxisTicks& ticks,
                              bool isUnitGiven) {
    if (ticks.wanted > static_cast<double>(Limits::kAxisValues)) {
        tellThinned(axis, ticks, isUnitGiven);
    } else if (ticks.isThinned) {
        Log::warning(kPictureIsFull, {nameOf(axis), static_cast<std::int64_t>(ticks.wanted)}, axis.getPlace());
    }
    if (ticks.values.size() > 2) context.takePolygons(ticks.values.size(), kCornersOfValue);
}

void VexaPlotArea::tellThinned(VexaAxisObject& axis, const AxisTicks& ticks, bool isUnitGiven) {
    const auto limit = static_cast<std::int64_t>(Limits::kAxisValues);
    if (!isUnitGiven) {
        Log::warning(kThinnedOut, {nameOf(axis), ticks.wanted, limit}, axis.getPlace());
        return;
    }
    raise(Exception(kUnitTooSmall, {printed(axis.getUnit()), nameOf(axis), ticks.wanted, limit}), kSource, __LINE__,
          axis.getPlace());
}

const Vector<Value>& VexaPlotArea::getAxisValues(VexaRenderContext& context, bool category) {
    return getScale(context, category).values();
}

float VexaPlotArea::getPosition(VexaRenderContext& context, float length, const Value& value, bool category) {
    return getScale(context, category).position(length, value);
}

float VexaPlotArea::getCrossPosition(VexaRenderContext& context, float length, bool category) {
    return getScale(context, category).crossPosition(length);
}

float VexaPlotArea::lengthAlong(VexaRenderContext& context, bool category) {
    const SizeF size = getAreaSize(context);
    return getAxis(category).isVertical() ? size.height : size.width;
}

float VexaPlotArea::getCategoryPosition(VexaRenderContext& context, const Value& category) {
    const AxisScale& scale = getScale(context, true);
    return scale.position(lengthAlong(context, true), category);
}

float VexaPlotArea::getValuePosition(VexaRenderContext& context, const Value& value) {
    const AxisScale& scale = getScale(context, false);
    return scale.position(lengthAlong(context, false), value);
}

float VexaPlotArea::getOriginPosition(VexaRenderContext& context) {
    const AxisScale& scale = getScale(context, false);
    return scale.crossPosition(lengthAlong(context, false));
}

}  // namespace VEXA
