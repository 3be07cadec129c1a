#pragma once

#include "vexa/style/VexaRenderContext.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA {

/// Paints a marker with the fill and the stroke in force. `origin` is the top left corner of its box, which is `size`
/// px wide and as high, but for the triangle: its sides are equal, so it is √3/2 as high. A dash runs through the
/// middle. False, with nothing painted, when the type is no marker and not `none` either.
bool drawMarker(VexaRenderContext& context, MarkerType type, PointF origin, float size);

}  // namespace VEXA
