#pragma once

#include "vexa/support/drawing/Matrix.h"
#include "vexa/support/drawing/Path.h"
#include "vexa/surfaces/cairo/CairoLibrary.h"

namespace VEXA {

/// In double precision; width and height may be 0.
struct PathBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    bool isFlat() const noexcept { return !(right > left && bottom > top); }
};

/// The transform of user space onto a page that has `scale` units to the px.
cairo_matrix_t deviceMatrix(const Matrix& user, double scale) noexcept;
/// False when the matrix squeezes everything onto a line or a point, or is not finite.
bool isInvertible(const cairo_matrix_t& matrix) noexcept;
/// False too when it squeezes one direction a billion times more than another: a pen would come to nothing in one and
/// to more than cairo can count in the other.
bool isDrawable(const cairo_matrix_t& matrix) noexcept;
/// At least by how much the matrix enlarges any direction, at most 1.5 times that.
double enlargementOf(const cairo_matrix_t& matrix) noexcept;

/// Where a point comes to on the page, cut to what cairo can count.
struct DevicePoint {
    double x;
    double y;
    bool isFinite;
};
DevicePoint toDevice(const cairo_matrix_t& matrix, PointF point) noexcept;

/// Length of the way between two points of the page, measured in user space; `inverse` leads there.
double userDistance(const cairo_matrix_t& inverse, const DevicePoint& from, const DevicePoint& to) noexcept;

/// Makes the path cairo's current one; its matrix must be the identity. False, and no path, when a coordinate is not
/// finite.
bool makeCurrentPath(cairo_t* context, const Path& path, const cairo_matrix_t& matrix);

/// The smallest box around a path with finite coordinates: a curve counts, not the points that steer it.
PathBox boxOf(const Path& path) noexcept;

/// How long the outline is in user space, as far as makeCurrentPath keeps it; that of a curve is no more than told.
double lengthOf(const Path& path, const cairo_matrix_t& matrix) noexcept;

}  // namespace VEXA
