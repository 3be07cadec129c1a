#pragma once

#include "vexa/surfaces/cairo/GlyphPainter.h"
#include "vexa/surfaces/cairo/PageRecord.h"
#include "vexa/surfaces/cairo/PixelWork.h"

namespace VEXA {

/// A page to draw on.
struct CairoCanvas {
    cairo_t* context = nullptr;      ///< its matrix is the identity
    double scale = 1;                ///< units of the page to the px
    GlyphPainter* glyphs = nullptr;  ///< how text comes to the page
    PageRecord* record = nullptr;    ///< of a page that is written when it ends; null for pixels
    PixelWork* pixels = nullptr;     ///< of a page of pixels; else null
};

}  // namespace VEXA
