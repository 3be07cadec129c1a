#pragma once

#include "vexa/support/drawing/Stroke.h"
#include "vexa/surfaces/cairo/DashBudget.h"
#include "vexa/surfaces/cairo/DevicePath.h"

namespace VEXA {

/// What a stroke of this outline means to cairo. REQUIRES: a stroke that paints, a matrix that can be inverted; the
/// stroke stays.
class StrokeStyle {
public:
    StrokeStyle(const Stroke& stroke, const Path& path, const cairo_matrix_t& matrix, DashBudget& dashes) noexcept;

    /// Sets all that the next stroke is drawn with but its source and its matrix.
    void apply(cairo_t* context) const;
    /// Cairo's matrix for the stroke: it bends the pen, as in SVG.
    const cairo_matrix_t& penMatrix() const noexcept { return pen_; }
    /// For a part of the outline that starts so far behind its start, in user space.
    void applyDashes(cairo_t* context, double walked) const;
    void applyCap(cairo_t* context) const;

    double width() const noexcept { return width_ / unit_; }  ///< in user space
    LineCap cap() const noexcept { return stroke_.getStartLineCap(); }
    bool isDashed() const noexcept { return stretch_ > 0; }

private:
    void shrinkPen(double enlargement) noexcept;

    const Stroke& stroke_;
    cairo_matrix_t pen_;
    double unit_ = 1;  ///< of user space, in the space that the pen's matrix takes to the page
    double width_;
    double miterLimit_;
    double stretch_ = 0;  ///< of the dashes; 0 for none
};

}  // namespace VEXA
