#pragma once

#include "vexa/pie/SliceGeometry.h"

namespace VEXA {

/// What decides where the caption of a slice stands. Lengths in px.
struct CaptionRequest {
    CaptionPlacement placement = CaptionPlacement::Default;
    SizeF text;            ///< the widest line; all lines with the gaps between them
    float lineHeight = 0;  ///< of the first line
    float offset = 0;      ///< distance from the rim
    float depth = 0;       ///< of the pie in the 3-D view, else 0
    bool wantsConnector = false;
};

/// Where the caption of a slice stands, in the coordinates of the pie.
struct CaptionLayout {
    RectF box;
    PointF anchor;  ///< where the baseline of the first line begins
    bool hasConnector = false;
    PointF connectorRim;  ///< a connector runs from here by the elbow to its end beside the text
    PointF connectorElbow;
    PointF connectorEnd;
};

/// Whether a caption with that placement stands outside the pie, where it may be wrapped and have a connector.
bool isOutside(CaptionPlacement placement) noexcept;

/// A slice's angle in degrees as on the face of a clock: 0 at 12 o'clock, 90 at 3 o'clock; from 0 to 360.
double clockAngle(double radians) noexcept;

/// Places a caption at the middle of its slice: inside the rim, at three quarters of the radius, or outside the rim.
/// Finite for finite arguments.
CaptionLayout placeCaption(const SliceGeometry& slice, const CaptionRequest& request);

}  // namespace VEXA
