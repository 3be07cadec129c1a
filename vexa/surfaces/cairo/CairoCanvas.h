#pragma once

#include "vexa/surfaces/cairo/GlyphPainter.h"

namespace VEXA {

/// A page to draw on.
struct CairoCanvas {
    cairo_t* context = nullptr;      ///< its matrix is the identity
    double scale = 1;                ///< units of the page to the px
    GlyphPainter* glyphs = nullptr;  ///< how text comes to the page
    bool isRaster = false;           ///< it consists of pixels
};

}  // namespace VEXA
