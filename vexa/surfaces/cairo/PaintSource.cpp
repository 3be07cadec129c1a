#include "vexa/surfaces/cairo/PaintSource.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace VEXA {

namespace {

/// The length of a gradient on the page, in its pixels: a shorter one is an edge, and cairo would take it for nothing.
constexpr double kShortest = 1.0 / 16;
/// How far a gradient may reach, and how many times an ellipse may be as long as a circle of its area.
constexpr double kLargest = 1e10;
constexpr double kSlimmest = 1e4;

struct Rgb {
    double red;
    double green;
    double blue;
};

Rgb componentsOf(std::uint32_t rgb) noexcept {
    return {((rgb >> 16U) & 0xFFU) / 255.0, ((rgb >> 8U) & 0xFFU) / 255.0, (rgb & 0xFFU) / 255.0};
}

/// From gradient space to the page.
cairo_matrix_t gradientToDevice(const Paint& paint, const PathBox& box, const cairo_matrix_t& matrix) {
    cairo_matrix_t result = deviceMatrix(gradientMatrix(*paint.gradient), 1);
    if (paint.dependsOnBox()) {
        const cairo_matrix_t stretch{box.right - box.left, 0, 0, box.bottom - box.top, box.left, box.top};
        cairo().matrix_multiply(&result, &result, &stretch);
    }
    cairo().matrix_multiply(&result, &result, &matrix);
    return result;
}

bool isWithin(double limit, std::initializer_list<double> values) noexcept {
    return std::all_of(values.begin(), values.end(), [limit](double value) { return std::abs(value) <= limit; });
}

/// The gradient's axis on the page itself: cairo's image backend multiplies pixels with a matrix of 16.16 numbers,
/// which is too coarse where a matrix stretches a unit square over a whole picture. An affine image of parallel stripes
/// are parallel stripes, but their axis is not that of the image: it stands upright on them. It may stand anywhere
/// along them, and so next to the origin.
CairoPtr<cairo_pattern_t> linearPattern(const LinearGradientBrush& gradient, const cairo_matrix_t& m) {
    const PointF start = gradient.start();
    const double dx = static_cast<double>(gradient.end().x) - start.x;
    const double dy = static_cast<double>(gradient.end().y) - start.y;
    const double ax = m.yy * dx - m.yx * dy;  // along the axis
    const double ay = m.xx * dy - m.xy * dx;
    const double length = std::hypot(ax, ay);
    double reach = (m.xx * m.yy - m.xy * m.yx) * (dx * dx + dy * dy) / length;
    reach = std::copysign(std::max(std::abs(reach), kShortest), reach);
    const double nx = ax / length;
    const double ny = ay / length;
    const double from = nx * (m.xx * start.x + m.xy * start.y + m.x0) + ny * (m.yx * start.x + m.yy * start.y + m.y0);
    const double to = from + reach;
    if (!isWithin(kLargest, {from, to})) return {};
    return CairoPtr<cairo_pattern_t>(cairo().pattern_create_linear(nx * from, ny * from, nx * to, ny * to));
}

/// A circle about the origin of a space as large as the page's pixels, for the same reason.
CairoPtr<cairo_pattern_t> radialPattern(const RadialGradientBrush& gradient, const cairo_matrix_t& m) {
    const double scale = std::sqrt(std::abs(m.xx * m.yy - m.xy * m.yx));
    const PointF centre = gradient.centre();
    cairo_matrix_t matrix{m.xx / scale,
                          m.yx / scale,
                          m.xy / scale,
                          m.yy / scale,
                          m.xx * centre.x + m.xy * centre.y + m.x0,
                          m.yx * centre.x + m.yy * centre.y + m.y0};
    const double radius = std::max(gradient.radii().width * scale, kShortest);
    // Cairo ends the program when a page comes to nothing in the gradient's space.
    if (!isWithin(kLargest, {radius, matrix.x0, matrix.y0}) || !(enlargementOf(matrix) <= kSlimmest)) return {};
    cairo().matrix_invert(&matrix);
    CairoPtr<cairo_pattern_t> pattern(cairo().pattern_create_radial(0, 0, 0, 0, 0, radius));
    cairo().pattern_set_matrix(pattern.get(), &matrix);
    return pattern;
}

cairo_extend_t extendOf(GradientSpreadMethod spread) noexcept {
    if (spread == GradientSpreadMethod::Reflect) return CAIRO_EXTEND_REFLECT;
    return spread == GradientSpreadMethod::Repeat ? CAIRO_EXTEND_REPEAT : CAIRO_EXTEND_PAD;
}

void addStop(cairo_pattern_t* pattern, double offset, const StopPoint& stop, double opacity) {
    const auto [red, green, blue] = componentsOf(stop.color->rgb());
    const double alpha = static_cast<double>(cutOpacity(stop.opacity)) * opacity;
    cairo().pattern_add_color_stop_rgba(pattern, offset, red, green, blue, alpha);
}

/// Offsets that go back count as the one before, as in SVG. The first and the last colour reach to the ends: cairo
/// would mix them there where the gradient is repeated, and loses a step at the last stop in a PDF.
void addStops(cairo_pattern_t* pattern, const Paint& paint) {
    const StopPoint* last = nullptr;
    double offset = 0;
    for (const StopPoint& stop : paint.gradient->getStops()) {
        if (!stop.color) continue;
        if (stop.offset > offset) offset = std::min(stop.offset, 1.0F);
        if (last == nullptr && offset > 0) addStop(pattern, 0, stop, paint.opacity);
        addStop(pattern, offset, stop, paint.opacity);
        last = &stop;
    }
    if (offset < 1) addStop(pattern, 1, *last, paint.opacity);
}

CairoPtr<cairo_pattern_t> patternOf(const GradientBrush& gradient, const cairo_matrix_t& matrix) {
    if (!isInvertible(matrix)) return {};
    return gradient.isRadial() ? radialPattern(static_cast<const RadialGradientBrush&>(gradient), matrix)
                               : linearPattern(static_cast<const LinearGradientBrush&>(gradient), matrix);
}

void setColor(cairo_t* context, std::uint32_t rgb, double opacity) {
    const auto [red, green, blue] = componentsOf(rgb);
    cairo().set_source_rgba(context, red, green, blue, opacity);
}

/// For a gradient that is beyond all counting: the colour behind its end.
void setLastStop(cairo_t* context, const Paint& paint) {
    const auto& stops = paint.gradient->getStops();
    const auto last =
        std::find_if(stops.rbegin(), stops.rend(), [](const StopPoint& stop) { return !stop.color.isEmpty(); });
    setColor(context, last->color->rgb(), static_cast<double>(cutOpacity(last->opacity)) * paint.opacity);
}

}  // namespace

void setSource(cairo_t* context, const Paint& paint, const PathBox& box, const cairo_matrix_t& matrix) {
    if (paint.gradient == nullptr) {
        setColor(context, paint.rgb, paint.opacity);
        return;
    }
    const auto pattern = patternOf(*paint.gradient, gradientToDevice(paint, box, matrix));
    if (pattern == nullptr) {
        setLastStop(context, paint);
        return;
    }
    addStops(pattern.get(), paint);
    cairo().pattern_set_extend(pattern.get(), extendOf(paint.gradient->getSpreadMethod()));
    cairo().set_source(context, pattern.get());
}

}  // namespace VEXA
