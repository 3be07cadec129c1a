#include "vexa/cartesian/PlotMapping.h"

#include "vexa/cartesian/VexaPlotArea.h"

namespace VEXA {

PlotMapping::PlotMapping(VexaPlotArea& plot, VexaRenderContext& context)
    : categories_(&plot.getScale(context, true)),
      values_(&plot.getScale(context, false)),
      direction_(plot.isVerticalValueAxis() ? BarDirection::Vertical : BarDirection::Horizontal) {
    const SizeF size = plot.getAreaSize(context);
    const bool isVertical = direction_ == BarDirection::Vertical;
    categoryLength_ = isVertical ? size.width : size.height;
    valueLength_ = isVertical ? size.height : size.width;
    origin_ = values_->crossPosition(valueLength_);
}

float PlotMapping::categoryPosition(const Value& category) const noexcept {
    return categories_->position(categoryLength_, category);
}

float PlotMapping::valuePosition(const Value& value) const noexcept { return values_->position(valueLength_, value); }

BarAnchors PlotMapping::anchors(float category, float value, float base) const noexcept {
    if (direction_ == BarDirection::Vertical) return {{category, value}, {category, base}};
    return {{value, category}, {base, category}};
}

BarAnchors PlotMapping::anchors(const Value& category, const Value& value) const noexcept {
    return anchors(categoryPosition(category), valuePosition(value), origin_);
}

}  // namespace VEXA
