#include "vexa/cartesian/VexaSerie.h"

#include <algorithm>
#include <array>

#include "vexa/cartesian/LostPoints.h"
#include "vexa/cartesian/VexaPlotArea.h"

namespace VEXA {

namespace {

constexpr int kNoCategory = 34070;
constexpr int kRepeatedCategory = 34071;

const Value& valueOf(const VexaDataPoint& point, bool category) {
    return category ? point.getCategory() : point.getValue();
}

/// Of two values of one kind; texts are in no order.
bool isBelow(const Value& a, const Value& b) noexcept {
    if (a.getKind() == ValueKind::Date) return a.getDate() < b.getDate();
    return a.getDouble() < b.getDouble();
}

/// Numbers, or dates, as measurements come: none is missing and none is repeated.
bool areRising(const XmlObjectList<VexaDataPoint>& points) {
    const auto isBreak = [](const auto& point, const auto& next) {
        const Value& category = point->getCategory();
        return category.getKind() != next->getCategory().getKind() || !isBelow(category, next->getCategory());
    };
    if (points.isEmpty() || points[0]->getCategory().isNone()) return points.isEmpty();
    return std::adjacent_find(points.begin(), points.end(), isBreak) == points.end();
}

}  // namespace

VexaSerie::VexaSerieTypeInfo::VexaSerieTypeInfo()
    : XmlTypeInfo("VexaSerie", "serie", chartNamespace(), &initTypeInfo) {}

void VexaSerie::VexaSerieTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    addElementTypeInfo(info, "data-point", chartNamespace(), &VexaSerie::dataPoints_);
}

XmlObjectTypeInfo* VexaSerie::getTypeInfoInstance() {
    static Immortal<VexaSerieTypeInfo> info;
    return &info.value;
}

void VexaSerie::setThemeFill(SmartPtr<Brush> fill) {
    for (const auto& point : dataPoints_) point->setThemeFill(fill);
    VexaElementObject::setThemeFill(std::move(fill));
}

void VexaSerie::setThemeStroke(SmartPtr<Stroke> stroke) {
    for (const auto& point : dataPoints_) point->setThemeStroke(stroke);
    VexaElementObject::setThemeStroke(std::move(stroke));
}

void VexaSerie::setThemeLineStroke(SmartPtr<Stroke> stroke) { themeLineStroke_ = std::move(stroke); }

void VexaSerie::prepareDataPoints() {
    if (!needsPreparation_) return;
    const bool areTexts = VexaPlotArea::of(*this).getDataKind(true) == ValueKind::Text;
    needsPreparation_ = false;
    if (!areTexts && areRising(dataPoints_)) return;
    ValueIndex categories;
    LostPoints nameless;
    LostPoints repeated;
    removeDataPoints([&](const VexaDataPoint& point) {
        const Value& category = point.getCategory();
        const std::size_t known = categories.size();
        if (category.isNone()) {
            nameless.add(point);
            return true;
        }
        if (categories.add(areTexts ? asText(category) : category) == known) return false;
        repeated.add(point);
        return true;
    });
    nameless.tell(kNoCategory);
    repeated.tell(kRepeatedCategory);
}

ValueKind VexaSerie::getValueType(bool categories) const {
    std::array<std::size_t, 4> counts{};
    for (const auto& point : dataPoints_) ++counts[static_cast<std::size_t>(valueOf(*point, categories).getKind())];
    const auto [none, numbers, dates, texts] = counts;
    if (numbers > texts) return ValueKind::Number;
    if (dates > texts) return ValueKind::Date;
    return texts > 0 ? ValueKind::Text : ValueKind::None;
}

AxisRange VexaSerie::getExtremes(bool categories) {
    const ValueKind type = getValueType(categories);
    removeDataPoints([&](const VexaDataPoint& point) { return valueOf(point, categories).getKind() != type; });
    AxisRange extremes;
    for (const auto& point : dataPoints_) {
        const Value& value = valueOf(*point, categories);
        if (extremes.min.isNone() || isBelow(value, extremes.min)) extremes.min = value;
        if (extremes.max.isNone() || !isBelow(value, extremes.max)) extremes.max = value;
    }
    return extremes;
}

Value VexaSerie::getMinValue(bool categories) { return getExtremes(categories).min; }
Value VexaSerie::getMaxValue(bool categories) { return getExtremes(categories).max; }

}  // namespace VEXA
