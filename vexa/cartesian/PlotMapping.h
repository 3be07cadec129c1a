#pragma once

#include "vexa/cartesian/AxisScale.h"
#include "vexa/cartesian/BarGeometry.h"
#include "vexa/cartesian/BarGroups.h"

namespace VEXA {

class VexaPlotArea;
class VexaRenderContext;

/// Where categories and values lie in a plot of the present size, asked once and then used for every data point.
/// Coordinates are px from the plot's top left corner. Valid until the plot area's size or data change.
class PlotMapping {
public:
    /// Throws NullPointerException when the plot area lacks an axis.
    PlotMapping(VexaPlotArea& plot, VexaRenderContext& context);

    BarDirection direction() const noexcept { return direction_; }
    /// Along the value axis: where bars and areas stand.
    float origin() const noexcept { return origin_; }
    float categoryPosition(const Value& category) const noexcept;
    float valuePosition(const Value& value) const noexcept;
    /// A point's value and base, from coordinates along the two axes.
    BarAnchors anchors(float category, float value, float base) const noexcept;
    BarAnchors anchors(const Value& category, const Value& value) const noexcept;

private:
    const AxisScale* categories_;
    const AxisScale* values_;
    BarDirection direction_;
    float categoryLength_;
    float valueLength_;
    float origin_;
};

}  // namespace VEXA
