#pragma once

#include "vexa/surfaces/cairo/PlacedText.h"

namespace VEXA {

/// How the glyphs of a text come to a page.
class GlyphPainter {
public:
    virtual ~GlyphPainter() = default;

    /// Paints the run with cairo's present source, or with its own colours in this opacity. Cairo's matrix is the
    /// identity, before and after; `matrix` takes the run to the page.
    virtual void paint(cairo_t* context, const PlacedRun& run, const cairo_matrix_t& matrix, double opacity) = 0;
};

}  // namespace VEXA
