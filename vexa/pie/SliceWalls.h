#pragma once

#include <optional>

#include "vexa/pie/SliceGeometry.h"

namespace VEXA {

/// The part of a rim that a wall of the 3-D view stands on, counter-clockwise on the screen.
struct WallEnds {
    PointF from;
    PointF to;
};

/// What shows of a slice's outer rim from in front: its part in the lower half of the pie. None when it has none there.
std::optional<WallEnds> outerWall(const SliceGeometry& slice) noexcept;

/// What shows of a slice's inner rim through the hole of a doughnut: its part in the upper half, on the far side.
std::optional<WallEnds> innerWall(const SliceGeometry& slice) noexcept;

}  // namespace VEXA
