#pragma once

#include "vexa/pie/SliceWalls.h"
#include "vexa/support/drawing/Path.h"

namespace VEXA {

/// The outline of a slice of a pie: along the rim and by the centre. A whole pie is an ellipse.
SmartPtr<Path> slicePath(const SliceGeometry& slice);

/// The outline of a slice of a doughnut: along both rims. A whole one is two ellipses; filled by the even-odd rule,
/// they leave the hole.
SmartPtr<Path> segmentPath(const SliceGeometry& slice);

/// A wall of the 3-D view: between the rim, with these radii, and the same rim `depth` px further down.
SmartPtr<Path> wallPath(const WallEnds& ends, const SizeF& radii, float depth);

}  // namespace VEXA
