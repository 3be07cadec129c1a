#pragma once

#include "vexa/surfaces/Paint.h"
#include "vexa/surfaces/cairo/DevicePath.h"

namespace VEXA {

/// Makes the paint cairo's source. `box` is that of the shape in user space, for a gradient that is stretched over it.
/// Cairo's matrix must be the identity. REQUIRES: a paint that paints, a matrix that can be inverted.
void setSource(cairo_t* context, const Paint& paint, const PathBox& box, const cairo_matrix_t& matrix);

}  // namespace VEXA
