#pragma once

#include "vexa/surfaces/cairo/DevicePath.h"
#include "vexa/surfaces/cairo/FreeTypeLibrary.h"

namespace VEXA {

/// From the units of a face, y upward, to the page, for a glyph of a text of this size (px) with its origin here.
cairo_matrix_t glyphMatrix(FT_Face face, const cairo_glyph_t& glyph, double fontSize, const cairo_matrix_t& matrix);

/// The outline of a glyph in the face's units; null when it has none. Stays until the face loads another one.
const FT_Outline* outlineOf(FT_Face face, unsigned long glyph);

/// Fills the outline of a glyph with cairo's present source; a coordinate that cairo cannot count is cut.
void fillOutline(cairo_t* context, const FT_Outline& outline, const cairo_matrix_t& matrix);

}  // namespace VEXA
