#pragma once

#include "vexa/surfaces/cairo/ColorGlyphs.h"
#include "vexa/surfaces/cairo/GlyphMask.h"
#include "vexa/surfaces/cairo/GlyphPainter.h"

namespace VEXA {

/// Glyphs on a page of pixels: at their very places, a fraction of a pixel included.
class RasterGlyphs final : public GlyphPainter {
public:
    RasterGlyphs(int width, int height) noexcept : mask_({0, 0, width, height}) {}

    void paint(cairo_t* context, const PlacedRun& run, const cairo_matrix_t& matrix, double opacity) override;

private:
    GlyphMask mask_;
    ColorGlyphs colored_{false};
};

}  // namespace VEXA
