#include "vexa/surfaces/cairo/DevicePath.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

/// A shape that reaches beyond all coordinates has a box that a gradient can be stretched over.
void include(double x, double y, PathBox& box) noexcept {
    x = std::clamp<double>(x, -Limits::kCoordinate, Limits::kCoordinate);
    y = std::clamp<double>(y, -Limits::kCoordinate, Limits::kCoordinate);
    box.left = std::min(box.left, x);
    box.top = std::min(box.top, y);
    box.right = std::max(box.right, x);
    box.bottom = std::max(box.bottom, y);
}

/// The value of a cubic Bézier polynomial.
double cubicAt(double t, double p0, double p1, double p2, double p3) noexcept {
    const double s = 1 - t;
    return s * s * s * p0 + 3 * s * s * t * p1 + 3 * s * t * t * p2 + t * t * t * p3;
}

/// Widens [low, high] by the inner extremes of the polynomial: where its derivative, a quadratic one, is 0.
void includeExtremes(double p0, double p1, double p2, double p3, double& low, double& high) noexcept {
    if (std::min(p1, p2) >= low && std::max(p1, p2) <= high) return;  // a curve stays within its points
    const double a = p3 - 3 * p2 + 3 * p1 - p0;
    const double b = 2 * (p2 - 2 * p1 + p0);
    const double c = p1 - p0;
    const double root = std::sqrt(b * b - 4 * a * c);
    // Without cancellation: one root as q / a, the other as c / q (Numerical Recipes, 5.6).
    const double q = -(b + std::copysign(root, b)) / 2;
    for (const double t : {q / a, c / q}) {
        if (!(t > 0 && t < 1)) continue;
        const double value = cubicAt(t, p0, p1, p2, p3);
        low = std::min(low, value);
        high = std::max(high, value);
    }
}

void includeCurve(PointF from, const PointF* p, PathBox& box) noexcept {
    include(p[2].x, p[2].y, box);
    includeExtremes(from.x, p[0].x, p[1].x, p[2].x, box.left, box.right);
    includeExtremes(from.y, p[0].y, p[1].y, p[2].y, box.top, box.bottom);
}

double cutCoordinate(double value) noexcept {
    return std::clamp(value, -Limits::kRasterCoordinate, Limits::kRasterCoordinate);
}

}  // namespace

cairo_matrix_t deviceMatrix(const Matrix& user, double scale) noexcept {
    const auto& [a, b, c, d, e, f] = user.getElements();
    return {a * scale, b * scale, c * scale, d * scale, e * scale, f * scale};
}

bool isInvertible(const cairo_matrix_t& m) noexcept {
    const double determinant = m.xx * m.yy - m.xy * m.yx;
    return determinant != 0 && std::isfinite(determinant) && std::isfinite(m.x0) && std::isfinite(m.y0);
}

bool isDrawable(const cairo_matrix_t& m) noexcept {
    constexpr double kSlimmest = 1e9;
    const double enlargement = enlargementOf(m);
    return isInvertible(m) && enlargement * enlargement <= kSlimmest * std::abs(m.xx * m.yy - m.xy * m.yx);
}

double enlargementOf(const cairo_matrix_t& m) noexcept { return std::hypot(m.xx, m.yx, std::hypot(m.xy, m.yy)); }

DevicePoint toDevice(const cairo_matrix_t& m, PointF point) noexcept {
    const double x = m.xx * point.x + m.xy * point.y + m.x0;
    const double y = m.yx * point.x + m.yy * point.y + m.y0;
    return {cutCoordinate(x), cutCoordinate(y), std::isfinite(x) && std::isfinite(y)};
}

double userDistance(const cairo_matrix_t& inverse, const DevicePoint& from, const DevicePoint& to) noexcept {
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    return std::hypot(inverse.xx * x + inverse.xy * y, inverse.yx * x + inverse.yy * y);
}

bool makeCurrentPath(cairo_t* context, const Path& path, const cairo_matrix_t& matrix) {
    const CairoLibrary& library = cairo();
    library.new_path(context);
    const PointF* next = path.points().data();
    bool isFinite = true;
    const auto take = [&] {
        const DevicePoint point = toDevice(matrix, *next++);
        isFinite = isFinite && point.isFinite;
        return point;
    };
    for (const PathVerb verb : path.verbs()) {
        if (verb == PathVerb::Close) {
            library.close_path(context);
            continue;
        }
        const DevicePoint first = take();
        if (verb == PathVerb::CurveTo) {
            const DevicePoint second = take();
            const DevicePoint end = take();
            library.curve_to(context, first.x, first.y, second.x, second.y, end.x, end.y);
        } else {
            (verb == PathVerb::MoveTo ? library.move_to : library.line_to)(context, first.x, first.y);
        }
    }
    if (!isFinite) library.new_path(context);
    return isFinite;
}

PathBox boxOf(const Path& path) noexcept {
    if (path.points().empty()) return {};
    const PointF* next = path.points().data();
    PointF start = *next;
    PointF pen = start;
    constexpr double kFar = std::numeric_limits<double>::max();
    PathBox box{kFar, kFar, -kFar, -kFar};
    include(pen.x, pen.y, box);
    for (const PathVerb verb : path.verbs()) {
        if (verb == PathVerb::Close) {
            pen = start;
            continue;
        }
        if (verb == PathVerb::CurveTo) {
            includeCurve(pen, next, box);
            next += 2;
        }
        pen = *next++;
        if (verb == PathVerb::MoveTo) start = pen;
        include(pen.x, pen.y, box);
    }
    return box;
}

double lengthOf(const Path& path, const cairo_matrix_t& matrix) noexcept {
    cairo_matrix_t inverse = matrix;
    cairo().matrix_invert(&inverse);
    const PointF* next = path.points().data();
    DevicePoint pen{};
    DevicePoint start{};
    double length = 0;
    const auto walk = [&](const DevicePoint& to) {
        length += userDistance(inverse, pen, to);
        pen = to;
    };
    for (const PathVerb verb : path.verbs()) {
        if (verb == PathVerb::MoveTo) {
            start = pen = toDevice(matrix, *next++);
        } else if (verb == PathVerb::Close) {
            walk(start);
        } else {
            for (int points = verb == PathVerb::CurveTo ? 3 : 1; points > 0; --points) walk(toDevice(matrix, *next++));
        }
    }
    return length;
}

}  // namespace VEXA
