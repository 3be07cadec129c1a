#pragma once

#include <optional>

#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// Where a pie stands in its area.
struct PieFit {
    RectF box;
    bool captionsFit = true;  ///< false when the captions would leave too little of the pie
};

/// The side of the largest square in the area, in px.
float pieSide(const RectF& area) noexcept;

/// The largest pie in the middle of the area, flattened in the 3-D view. `captionMargin` is the room that captions take
/// on each side of it, in px; none when no captions are shown. Captions that do not fit take no room.
PieFit fitPie(const RectF& area, bool isView3D, std::optional<float> captionMargin) noexcept;

}  // namespace VEXA
