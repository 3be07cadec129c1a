#include "vexa/cartesian/ChartPass.h"

#include "vexa/cartesian/VexaBar.h"
#include "vexa/cartesian/VexaPlotArea.h"

namespace VEXA {

namespace {

/// A bar as it stands alone. One without value has no length.
UnplacedBar barOf(const VexaDataPoint& point, const PlotMapping& mapping) {
    const float base = mapping.origin();
    const float value = point.getValue().isNone() ? base : mapping.valuePosition(point.getValue());
    return {mapping.categoryPosition(point.getCategory()), value, base, point.getWidth()};
}

UnplacedSeries barsOf(const VexaContainerObject& chart, const PlotMapping& mapping) {
    UnplacedSeries series;
    series.reserve(chart.getSeries().size());
    for (const auto& serie : chart.getSeries()) {
        auto& bars = series.emplace_back();
        bars.reserve(serie->getDataPoints().size());
        for (const auto& point : serie->getDataPoints()) bars.push_back(barOf(*point, mapping));
    }
    return series;
}

void moveBy(const ShiftedSeries& shifts, UnplacedSeries& series) {
    for (std::size_t s = 0; s < series.size(); ++s) {
        for (std::size_t p = 0; p < series[s].size(); ++p) {
            UnplacedBar& bar = series[s][p];
            bar.category = shifts[s][p].category;
            bar.value -= shifts[s][p].value;
            bar.base -= shifts[s][p].value;
        }
    }
}

}  // namespace

ChartPass::ChartPass(VexaContainerObject& chart, VexaRenderContext& context)
    : mapping_(VexaPlotArea::of(chart), context), isBarChart_(chart.getContainerKind() == ContainerKind::Bar) {
    VexaPlotArea& plot = VexaPlotArea::of(chart);
    is3D_ = plot.isView3DMode();
    depth_ = is3D_ ? plot.getChartDepth() : 0;
    shading_ = plot.getAspectShading();
    areCaptionsShown_ = plot.getShowCaptions();
    if (isBarChart_) placeAll(chart);
}

void ChartPass::placeAll(VexaContainerObject& chart) {
    const auto* const bar = dynamic_cast<const VexaBar*>(&chart);
    isCylinder_ = bar != nullptr && bar->getBarShape() == BarShapeType::Cylinder;
    if (chart.getSeries().size() < 2) return;  // a bar alone is not placed, whatever the grouping
    grouping_ = chart.getGrouping();
    if (grouping_ != SerieGrouping::Clustered && grouping_ != SerieGrouping::Stacked) return;
    bars_ = barsOf(chart, mapping_);
    moveBy(placeBars(bars_, grouping_, bar == nullptr ? 0 : bar->getClusterSpacing()), bars_);
    if (is3D_ && grouping_ == SerieGrouping::Stacked) collectRoles(chart);
}

void ChartPass::collectRoles(const VexaContainerObject& chart) {
    std::size_t index = 0;
    for (const auto& serie : chart.getSeries()) {
        for (const auto& point : serie->getDataPoints()) {
            if (!point->getValue().isNone()) roles_.add(index, point->getCategory(), point->getValue().getFloat());
        }
        ++index;
    }
}

BarAnchors ChartPass::anchorsOf(const VexaDataPoint& point, PointPlace place) const {
    if (bars_.empty()) return mapping_.anchors(point.getCategory(), point.getValue());
    const UnplacedBar& bar = bars_[place.serie][place.point];
    return mapping_.anchors(bar.category, bar.value, bar.base);
}

BarRole ChartPass::roleOf(const VexaDataPoint& point, PointPlace place) const noexcept {
    const float value = point.getValue().getFloat();
    if (grouping_ == SerieGrouping::Stacked) return roles_.roleOf(place.serie, point.getCategory(), value);
    BarRole role;
    role.grouping = grouping_;
    role.sign = signOf(value);
    return role;
}

bool ChartPass::hasCap(const VexaDataPoint& point, PointPlace place) const noexcept {
    return grouping_ != SerieGrouping::Stacked || roles_.hasCap(place.serie, point.getCategory());
}

}  // namespace VEXA
