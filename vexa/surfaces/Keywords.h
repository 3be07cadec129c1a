#pragma once

#include <string_view>

#include "vexa/support/drawing/Brush.h"
#include "vexa/support/drawing/Stroke.h"

namespace VEXA {

/// The words of SVG, which the display list shares. A value that no enumerator has is read as the default (`butt`,
/// `miter`, `objectBoundingBox`, `pad`).
std::string_view keywordOf(LineCap cap) noexcept;
std::string_view keywordOf(LineJoin join) noexcept;
std::string_view keywordOf(GradientUnits units) noexcept;
std::string_view keywordOf(GradientSpreadMethod spread) noexcept;

}  // namespace VEXA
