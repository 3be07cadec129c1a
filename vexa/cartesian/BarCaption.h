#pragma once

#include "vexa/cartesian/BarGeometry.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA {

/// What a caption stands at, in px.
struct CaptionedBar {
    BarAnchors anchors;
    BarDirection direction = BarDirection::Vertical;
    float depth = 0;         ///< of the 3-D view; 0 in the flat one
    bool isBarChart = true;  ///< else a line or an area, whose solid is not moved
    bool isCylinder = false;
};

/// The lower left corner of a caption of the size `text` that keeps `offset` px away from the bar's end or base.
PointF placeBarCaption(const CaptionedBar& bar, CaptionPlacement placement, SizeF text, float offset) noexcept;

}  // namespace VEXA
