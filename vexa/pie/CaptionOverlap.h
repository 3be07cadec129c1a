#pragma once

#include <span>

#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// Which of the boxes stay when each one, in order, gives way to the earlier ones that stay and that it intersects.
/// Boxes that only touch do not intersect, and a box without extent intersects none.
Vector<bool> boxesWithoutOverlap(std::span<const RectF> boxes);

}  // namespace VEXA
