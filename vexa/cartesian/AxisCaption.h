#pragma once

#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// What decides where the caption of an axis stands. All in px, seen from the plot's top left corner.
struct CaptionSpace {
    bool isCategory = false;
    bool isVertical = false;
    bool isAtMaximum = false;  ///< the axis lies on the right or at the top
    RectF axis;                ///< the axis line
    float plotHeight = 0;
    SizeF text;         ///< of the caption
    float offset = 0;   ///< between caption and labels
    float descent = 0;  ///< of the caption's font
    SizeF labels;       ///< the largest label, and its distance from the line
    float labelOffset = 0;
    bool isLabelAtEdge = false;  ///< labels of a category axis inside the plot stand at the plot's edge
};

/// Where the baseline of the caption starts, seen from the start of the axis line, and by how much it is turned around
/// that point: degrees, clockwise.
struct CaptionFrame {
    PointF origin;
    float angle = 0;
    friend bool operator==(const CaptionFrame&, const CaptionFrame&) = default;
};

CaptionFrame captionFrame(const CaptionSpace& space) noexcept;

}  // namespace VEXA
