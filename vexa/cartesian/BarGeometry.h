#pragma once

#include <cstdint>

#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

enum class BarDirection : std::uint8_t { Vertical, Horizontal };

/// Where a bar stands, in plot coordinates: its value, and the same category at the origin of the value axis. The place
/// across the category axis is that of `value`.
struct BarAnchors {
    PointF value;
    PointF base;
};

/// A bar of `width` px across the category axis, as the flat view shows it. Never of negative length.
RectF flatBar(const BarAnchors& bar, float width, BarDirection direction) noexcept;

}  // namespace VEXA
