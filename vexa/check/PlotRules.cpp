#include "vexa/check/PlotRules.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "vexa/check/AttributeReading.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/support/values/LocalForms.h"

namespace VEXA {

namespace {

constexpr int kYears = 34120;
constexpr int kHalfBars = 34123;
constexpr int kTextForDate = 34128;
constexpr int kTextForNumber = 34129;
constexpr int kBeyondAxis = 34133;
constexpr int kStackedAreas = 34134;
constexpr int kFlatCylinders = 34139;
constexpr int kTimesOfDay = 34140;
constexpr double kFirstYear = 1500;  // numbers between these two, and no others, are taken for years
constexpr double kLastYear = 2200;
constexpr float kClip = 1;  // px that the clip of a chart leaves around the plot

/// Calls `visit` for the data points of all charts, in document order, until it says false.
template <class Visit>
bool forEachPoint(const VexaPlotArea& plot, const Visit& visit) {
    for (const auto& chart : plot.getCharts()) {
        for (const auto& serie : chart->getSeries()) {
            for (const auto& point : serie->getDataPoints()) {
                if (!visit(*chart, *point)) return false;
            }
        }
    }
    return true;
}

bool isCalendarUnit(AxisUnitsType unit) noexcept {
    return unit == AxisUnitsType::Days || unit == AxisUnitsType::Months || unit == AxisUnitsType::Years;
}

bool areAllLikeDates(const VexaPlotArea& plot) {
    return forEachPoint(plot, [](const VexaContainerObject&, const VexaDataPoint& point) {
        const Value& category = point.getCategory();
        return category.isNone() || !suggestDate(category.getValue().toUtf8()).empty();
    });
}

bool isAnyDate(const VexaPlotArea& plot) {
    return !forEachPoint(plot, [](const VexaContainerObject&, const VexaDataPoint& point) {
        return point.getCategory().getKind() != ValueKind::Date;
    });
}

/// Whether the axis speaks of dates although it shows texts.
bool speaksOfDates(VexaPlotArea& plot) {
    return isCalendarUnit(plot.getAxis(true).getUnit().getType()) || isAnyDate(plot) || areAllLikeDates(plot);
}

/// The first text on a text axis that `suggest` knows a better form of.
template <class Suggest>
void hintAtForm(VexaPlotArea& plot, bool category, const Suggest& suggest, int code, ProblemList& problems) {
    forEachPoint(plot, [&](const VexaContainerObject&, const VexaDataPoint& point) {
        const Value& value = category ? point.getCategory() : point.getValue();
        if (value.getKind() != ValueKind::Text) return true;
        const String text = value.getValue();
        const std::string meant = suggest(text.toUtf8());
        if (meant.empty()) return true;
        problems.add(Severity::Hint, code, {quoteForMessage(text), String(meant)}, point.getPlace());
        return false;
    });
}

bool isAutomaticText(VexaPlotArea& plot, bool category) {
    return plot.getAxis(category).getDataType() == AxisDataType::Automatic &&
           plot.getDataKind(category) == ValueKind::Text;
}

bool hasBothAxes(VexaPlotArea& plot) {
    return plot.getOtherAxis(true) != nullptr && plot.getOtherAxis(false) != nullptr;
}

/// The earliest of the categories when all are years; 0 when they are not, or fewer than two.
double firstYear(const VexaPlotArea& plot) {
    double first = kLastYear;
    double last = 0;
    const bool areYears = forEachPoint(plot, [&](const VexaContainerObject&, const VexaDataPoint& point) {
        const double year = point.getCategory().getDouble();
        first = std::min(first, year);
        last = std::max(last, year);
        return year >= kFirstYear && year <= kLastYear && year == std::floor(year);
    });
    return areYears && first < last ? first : 0;
}

void checkYears(VexaPlotArea& plot, ProblemList& problems) {
    if (plot.getDataKind(true) != ValueKind::Number) return;
    VexaAxisObject& axis = plot.getAxis(true);
    const AxisRange& range = axis.getRange();
    if (range.min.getDouble() < firstYear(plot) / 2)
        problems.add(Severity::Hint, kYears, {range.min.getValue(), range.max.getValue()}, axis.getPlace());
}

/// Whether an edge of the plot cuts a bar whose category lies inside.
bool isCut(float position, float width, float length) noexcept {
    const bool isInside = position >= 0 && position <= length;
    return isInside && (position - width / 2 < -kClip || position + width / 2 > length + kClip);
}

void checkBars(VexaPlotArea& plot, VexaRenderContext& context, ProblemList& problems) {
    VexaAxisObject& axis = plot.getAxis(true);
    if (axis.getPlacement() == DisplayValPlacement::BetweenTicks) return;
    const SizeF size = plot.getAreaSize(context);
    const float length = axis.isVertical() ? size.height : size.width;
    const bool areWhole = forEachPoint(plot, [&](const VexaContainerObject& chart, const VexaDataPoint& point) {
        if (chart.getContainerKind() != ContainerKind::Bar) return true;
        return !isCut(plot.getCategoryPosition(context, point.getCategory()), point.getWidth(), length);
    });
    if (!areWhole) problems.add(Severity::Hint, kHalfBars, {}, axis.getPlace());
}

/// A point on an end of the axis may lie this part of it beyond.
constexpr float kRounding = 1e-4F;

/// Points that an axis has no place for, although they are of its kind: its `min` and `max` leave them out.
void checkReach(VexaPlotArea& plot, bool category, ProblemList& problems) {
    VexaAxisObject& axis = plot.getAxis(category);
    const ValueKind kind = plot.getDataKind(category);
    std::int64_t beyond = 0;
    SourcePlace first;
    forEachPoint(plot, [&](const VexaContainerObject&, const VexaDataPoint& point) {
        const Value& value = category ? point.getCategory() : point.getValue();
        if (value.getKind() != kind || kind == ValueKind::Text) return true;
        const float position = axis.getRelativePosition(value);
        if (position >= -kRounding && position <= 1 + kRounding) return true;
        if (beyond++ == 0) first = point.getPlace();
        return true;
    });
    if (beyond == 0) return;
    const AxisRange& range = axis.getRange();
    problems.add(Severity::Hint, kBeyondAxis,
                 {beyond, axis.getTypeInfo()->getElementName(), range.min.getValue(), range.max.getValue()}, first);
}

/// Bars alone stand on each other.
void checkStacking(const VexaPlotArea& plot, ProblemList& problems) {
    for (const auto& chart : plot.getCharts()) {
        const bool isStacked = chart->getGrouping() == SerieGrouping::Stacked && chart->getSeries().size() > 1;
        if (isStacked && chart->getContainerKind() != ContainerKind::Bar)
            problems.add(Severity::Hint, kStackedAreas, {chart->getTypeInfo()->getElementName()}, chart->getPlace());
    }
}

/// Points of one day, one after the other in their series, which a date axis has one place for.
void checkTimes(VexaPlotArea& plot, ProblemList& problems) {
    if (plot.getDataKind(true) != ValueKind::Date) return;
    const VexaDataPoint* before = nullptr;
    forEachPoint(plot, [&](const VexaContainerObject&, const VexaDataPoint& point) {
        const VexaDataPoint* const last = std::exchange(before, &point);
        if (last == nullptr || last->getParent() != point.getParent()) return true;
        const DateTimeEx day = last->getCategory().getDate();
        const DateTimeEx next = point.getCategory().getDate();
        if (day == next || day.dayNumber() != next.dayNumber()) return true;
        problems.add(Severity::Hint, kTimesOfDay, {}, point.getPlace());
        return false;
    });
}

void checkShapes(VexaPlotArea& plot, ProblemList& problems) {
    if (plot.isView3DMode()) return;
    for (const auto& chart : plot.getCharts()) {
        if (chart->getContainerKind() == ContainerKind::Bar &&
            *readAttribute<BarShapeType>(*chart, "bar-shape") == BarShapeType::Cylinder)
            problems.add(Severity::Hint, kFlatCylinders, {}, chart->getPlace());
    }
}

}  // namespace

void checkPlotData(VexaPlotArea& plot, ProblemList& problems) {
    for (const bool category : {false, true}) {
        VexaAxisObject* const axis = plot.getOtherAxis(!category);
        if (axis == nullptr) continue;
        try {
            VexaPlotArea::checkUnit(*axis);
        } catch (const Exception& error) {
            problems.add(error);
        }
    }
    if (!hasBothAxes(plot)) return;
    if (isAutomaticText(plot, true) && speaksOfDates(plot)) hintAtForm(plot, true, suggestDate, kTextForDate, problems);
    if (isAutomaticText(plot, false)) hintAtForm(plot, false, suggestNumber, kTextForNumber, problems);
    plot.getData(true);
}

void checkPlotLayout(VexaPlotArea& plot, VexaRenderContext& context, ProblemList& problems) {
    if (!hasBothAxes(plot)) return;
    checkYears(plot, problems);
    checkStacking(plot, problems);
    checkShapes(plot, problems);
    checkTimes(plot, problems);
    for (const bool category : {false, true}) checkReach(plot, category, problems);
    const SizeF size = plot.getAreaSize(context);
    if (size.width > 0 && size.height > 0) checkBars(plot, context, problems);
}

}  // namespace VEXA
