#include "vexa/cartesian/LostPoints.h"
#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/support/values/LocalForms.h"

// What the plot area knows of its data, whatever its size: kinds, ranges and totals.

namespace VEXA {

namespace {

constexpr int kOtherKind = 34072;
constexpr int kOtherForm = 34106;

bool isStacked(const VexaContainerObject& chart) {
    return chart.getContainerKind() == ContainerKind::Bar && chart.getGrouping() == SerieGrouping::Stacked;
}

String nameOf(const VexaAxisObject& axis) { return axis.getTypeInfo()->getElementName(); }

String nameOf(ValueKind kind) { return kind == ValueKind::Date ? "date" : "number"; }

/// Points whose value, or category, is not of the axis's kind; `first` is the one of the first of them.
void tellOtherKind(const LostPoints& lost, const Value& first, ValueKind kind, const VexaAxisObject& axis) {
    if (lost.isEmpty()) return;
    VariantArray arguments{String(axis.isCategory() ? "category" : "value"), nameOf(kind), nameOf(axis)};
    const std::string text = first.getValue().toUtf8();
    const std::string meant = kind == ValueKind::Date ? suggestDate(text) : suggestNumber(text);
    if (meant.empty()) return lost.tell(kOtherKind, std::move(arguments));
    arguments.insert(arguments.end(), {quoteForMessage(String(text)), String(meant)});
    lost.tell(kOtherForm, std::move(arguments));
}

}  // namespace

ValueKind VexaPlotArea::getDataKind(bool category) {
    countKinds();
    switch (getAxis(category).getDataType()) {
        case AxisDataType::Automatic:
            return kinds_[slot(category)].winner();
        case AxisDataType::Number:
        case AxisDataType::NumberAlt:
            return ValueKind::Number;
        case AxisDataType::Date:
            return ValueKind::Date;
        case AxisDataType::Text:
            return ValueKind::Text;
    }
    return ValueKind::None;
}

// Of both axes at once, before the first point of any series is taken out.
void VexaPlotArea::countKinds() {
    if (areKindsCounted_) return;
    areKindsCounted_ = true;
    const auto isAutomatic = [](const auto& axis) { return axis && axis->getDataType() == AxisDataType::Automatic; };
    if (!isAutomatic(categoryAxis_) && !isAutomatic(valueAxis_)) return;
    for (const auto& chart : charts_) {
        for (const auto& serie : chart->getSeries()) {
            for (const auto& point : serie->getDataPoints()) {
                if (point->getCategory().isNone()) continue;
                kinds_[slot(true)].add(point->getCategory().getKind());
                kinds_[slot(false)].add(point->getValue().getKind());
            }
        }
    }
}

const AxisData& VexaPlotArea::getData(bool category) {
    if (!data_[slot(category)]) measureData();
    return *data_[slot(category)];
}

void VexaPlotArea::measureData() {
    const ValueKind kinds[2] = {getDataKind(false), getDataKind(true)};
    for (const std::size_t axis : {slot(false), slot(true)}) data_[axis] = std::make_unique<AxisData>(kinds[axis]);
    for (const auto& chart : charts_) {
        for (const auto& serie : chart->getSeries()) cleanSerie(*serie);
    }
    measureExtremes();
}

void VexaPlotArea::cleanSerie(VexaSerie& serie) {
    serie.prepareDataPoints();
    AxisData& values = *data_[slot(false)];
    AxisData& categories = *data_[slot(true)];
    LostPoints otherValues;
    LostPoints otherCategories;
    Value firstValue;
    Value firstCategory;
    serie.removeDataPoints([&](const VexaDataPoint& point) {
        categories.addText(point.getCategory());
        values.addText(point.getValue());
        const bool hasCategory = isKept(point.getCategory().getKind(), categories.kind());
        const bool hasValue = isKept(point.getValue().getKind(), values.kind());
        if (!hasCategory && otherCategories.isEmpty()) firstCategory = point.getCategory();
        if (!hasCategory) otherCategories.add(point);
        if (hasCategory && !hasValue && otherValues.isEmpty()) firstValue = point.getValue();
        if (hasCategory && !hasValue) otherValues.add(point);
        return !hasCategory || !hasValue;
    });
    tellOtherKind(otherCategories, firstCategory, categories.kind(), *categoryAxis_);
    tellOtherKind(otherValues, firstValue, values.kind(), *valueAxis_);
}

void VexaPlotArea::measureExtremes() {
    AxisData& values = *data_[slot(false)];
    AxisData& categories = *data_[slot(true)];
    for (const auto& chart : charts_) {
        const bool stacks = isStacked(*chart) && values.kind() == ValueKind::Number;
        for (const auto& serie : chart->getSeries()) {
            for (const auto& point : serie->getDataPoints()) {
                categories.addExtreme(point->getCategory());
                if (stacks) {
                    values.addNumber(getStackedTotal(false, point->getCategory(), true));
                    values.addNumber(getStackedTotal(false, point->getCategory(), false));
                } else {
                    values.addExtreme(point->getValue());
                }
            }
        }
    }
}

float VexaPlotArea::getStackedTotal(bool category, const Value& categoryValue, bool positive) {
    if (category) return 0;
    if (!data_[slot(false)]) measureData();
    if (!totals_) collectTotals();
    return totals_->find(categoryValue, positive);
}

void VexaPlotArea::collectTotals() {
    totals_ = std::make_unique<StackedTotals>();
    for (const auto& chart : charts_) {
        for (const auto& serie : chart->getSeries()) {
            for (const auto& point : serie->getDataPoints())
                totals_->add(point->getCategory(), point->getValue().getFloat());
        }
    }
}

AxisRange VexaPlotArea::getAxisRange(bool category) { return getData(category).range(getAxis(category).getUnit()); }

}  // namespace VEXA
