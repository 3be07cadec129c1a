#pragma once

#include "vexa/surfaces/cairo/StrokeStyle.h"

namespace VEXA {

/// A path that cairo strokes in time that grows faster than its length: one outline of all its parts, each of which it
/// follows from row to row of the page. 50,000 points with round joins take it a minute.
bool isLongPolyline(const Path& path) noexcept;

/// Strokes such a path on pixels with cairo's present source in pieces, in time that grows with its length. Their
/// coverage adds up before it is painted, so that nothing shows where they meet. Cairo's matrix must be the identity.
/// REQUIRES: finite coordinates.
void strokeInPieces(cairo_t* context, const StrokeStyle& style, const Path& path, const cairo_matrix_t& matrix);

}  // namespace VEXA
