#include "vexa/surfaces/cairo/StrokeStyle.h"

#include <algorithm>
#include <cmath>

#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

/// A pattern shorter than this on the page, in its pixels, is stretched: it is a shade, and cairo, which counts in
/// 1/256, would lose its gaps.
constexpr double kShortestTurn = 0.5;
constexpr double kLargestPen = 1e6;

cairo_line_cap_t capOf(LineCap cap) noexcept {
    if (cap == LineCap::Round) return CAIRO_LINE_CAP_ROUND;
    return cap == LineCap::Square ? CAIRO_LINE_CAP_SQUARE : CAIRO_LINE_CAP_BUTT;
}

cairo_line_join_t joinOf(LineJoin join) noexcept {
    if (join == LineJoin::Round) return CAIRO_LINE_JOIN_ROUND;
    return join == LineJoin::Bevel ? CAIRO_LINE_JOIN_BEVEL : CAIRO_LINE_JOIN_MITER;
}

/// One turn of a dash pattern; an odd pattern is written twice.
struct Turn {
    double dashes;
    double length;
};

Turn turnOf(const Vector<float>& pattern) noexcept {
    const auto entries = static_cast<double>(pattern.size());
    double length = 0;
    for (const float each : pattern) length += each;
    return pattern.size() % 2 == 0 ? Turn{entries / 2, length} : Turn{entries, 2 * length};
}

}  // namespace

StrokeStyle::StrokeStyle(const Stroke& stroke, const Path& path, const cairo_matrix_t& matrix,
                         DashBudget& dashes) noexcept
    : stroke_(stroke), pen_{matrix.xx, matrix.yx, matrix.xy, matrix.yy, 0, 0} {
    const double enlargement = enlargementOf(matrix);
    shrinkPen(enlargement);
    const double widest = Limits::kRasterCoordinate / enlargement;
    const double width = std::min(double{stroke.getThickness()}, widest);
    const double sharpest = std::max(2 * widest / width, 1.0);  // so that a corner's tip can be counted
    width_ = width * unit_;
    miterLimit_ = stroke.getMiterLimit() > 1 ? std::min(double{stroke.getMiterLimit()}, sharpest) : 1;
    if (!stroke.isDashed()) return;
    const Turn turn = turnOf(stroke.getDashArray());
    const double visible = std::max(kShortestTurn / (turn.length * enlargement), 1.0);
    const double stretch = visible * dashes.stretchOf(lengthOf(path, matrix) / (turn.length * visible) * turn.dashes);
    if (std::isfinite(stretch)) stretch_ = stretch;
}

/// A PDF tells the pen's matrix, and has no numbers for any size.
void StrokeStyle::shrinkPen(double enlargement) noexcept {
    if (!(enlargement > kLargestPen)) return;
    unit_ = enlargement / kLargestPen;
    for (double* each : {&pen_.xx, &pen_.yx, &pen_.xy, &pen_.yy}) *each /= unit_;
}

void StrokeStyle::apply(cairo_t* context) const {
    cairo().set_line_width(context, width_);
    cairo().set_line_join(context, joinOf(stroke_.getLineJoin()));
    cairo().set_miter_limit(context, miterLimit_);
    applyCap(context);
    applyDashes(context, 0);
}

void StrokeStyle::applyCap(cairo_t* context) const { cairo().set_line_cap(context, capOf(stroke_.getStartLineCap())); }

void StrokeStyle::applyDashes(cairo_t* context, double walked) const {
    Vector<double> lengths;
    if (stretch_ > 0) lengths.reserve(stroke_.getDashArray().size());
    for (const float length : stroke_.getDashArray()) {
        if (stretch_ > 0) lengths.push_back(std::min(length * stretch_ * unit_, double{Limits::kCoordinate}));
    }
    const double offset = (stroke_.getDashOffset() * stretch_ + walked) * unit_;
    cairo().set_dash(context, lengths.data(), static_cast<int>(lengths.size()), std::isfinite(offset) ? offset : 0);
}

}  // namespace VEXA
