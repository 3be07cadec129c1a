#pragma once

#include <cmath>

namespace VEXA {

/// Whether two coordinates are the same place: an axis so near to an edge of the plot (px) lies on it.
inline bool isSamePlace(float a, float b) noexcept { return std::fabs(a - b) < 0.00001F; }

}  // namespace VEXA
