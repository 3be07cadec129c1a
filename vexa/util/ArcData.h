#pragma once

#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// An arc of an ellipse whose axes are the x and the y axis, in centre form. Angles are degrees from the positive x
/// axis, growing clockwise on the screen.
struct ArcData {
    RectF rect;            ///< bounding box of the whole ellipse
    float startAngle = 0;  ///< of the arc's first point
    float sweepAngle = 0;  ///< positive runs clockwise on the screen, negative counter-clockwise
};

}  // namespace VEXA
