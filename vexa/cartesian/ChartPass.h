#pragma once

#include "vexa/cartesian/PlotMapping.h"
#include "vexa/cartesian/StackRoles.h"
#include "vexa/cartesian/VexaDataPoint.h"

namespace VEXA {

class VexaContainerObject;
class VexaPlotArea;

/// Where a data point stands in its chart: the numbers of its series and of itself in that.
struct PointPlace {
    std::size_t serie = 0;
    std::size_t point = 0;
};

/// What a chart knows of its data points while it is painted: how the plot shows them, where they lie, and how bars
/// stand among each other. Made in one pass over the chart; every question takes constant time. Valid as long as
/// neither the chart nor the plot area changes.
class ChartPass {
public:
    /// Throws NullPointerException outside a plot area and without an axis.
    ChartPass(VexaContainerObject& chart, VexaRenderContext& context);

    bool is3D() const noexcept { return is3D_; }
    /// Of a body in the 3-D view, in px; 0 in the flat one.
    float depth() const noexcept { return depth_; }
    float shading() const noexcept { return shading_; }
    bool areCaptionsShown() const noexcept { return areCaptionsShown_; }
    bool isBarChart() const noexcept { return isBarChart_; }
    bool isCylinder() const noexcept { return isCylinder_; }
    const PlotMapping& mapping() const noexcept { return mapping_; }
    BarDirection direction() const noexcept { return mapping_.direction(); }

    /// The point's value and base; those of a bar where it is placed among the others.
    BarAnchors anchorsOf(const VexaDataPoint& point, PointPlace place) const;
    BarRole roleOf(const VexaDataPoint& point, PointPlace place) const noexcept;
    bool hasCap(const VexaDataPoint& point, PointPlace place) const noexcept;

private:
    void placeAll(VexaContainerObject& chart);
    void collectRoles(const VexaContainerObject& chart);

    PlotMapping mapping_;
    bool is3D_;
    float depth_;
    float shading_;
    bool areCaptionsShown_;
    bool isBarChart_;
    bool isCylinder_ = false;
    SerieGrouping grouping_ = SerieGrouping::Overlapped;
    UnplacedSeries bars_;  // where grouping places them: category, value and base as placed
    StackRoles roles_;     // of stacked bars in the 3-D view
};

}  // namespace VEXA
