#pragma once

#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// What an axis needs around the plot.
struct AxisSpace {
    bool isVertical = false;
    bool isAtMaximum = false;    ///< the axis lies on the right or at the top
    RectF labels;                ///< box of the labels, relative to the start of the axis line
    float captionThickness = 0;  ///< px across the axis
    float tickExtent = 0;
};

/// The 3-D view: how far the scene reaches up and to the right, px. 0 in the flat view.
struct SceneDepth {
    bool is3D = false;
    float depth = 0;
};

/// The plot's rectangle within `area`: shrunk so that labels, ticks and captions of both axes stay inside the area.
/// Sides may come out 0 or negative when there is no room. REQUIRES: one axis vertical, the other not.
RectF layoutPlotRect(const RectF& area, const AxisSpace& valueAxis, const AxisSpace& categoryAxis,
                     const SceneDepth& scene) noexcept;

}  // namespace VEXA
