#pragma once

#include <array>

#include "vexa/style/VexaRenderContext.h"

namespace VEXA {

/// Corners of a flat face of a solid, around it.
using SolidFace = std::array<PointF, 4>;

/// The face between an edge of a solid's front and the same edge `depth` px further up and to the right.
SolidFace ribbon(PointF from, PointF to, float depth) noexcept;

/// Paints a face with the fill and the stroke in force.
void drawFace(VexaRenderContext& context, const SolidFace& face);

}  // namespace VEXA
