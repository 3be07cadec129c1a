#include "vexa/surfaces/Paint.h"

#include <algorithm>
#include <cmath>

namespace VEXA {

namespace {

bool isFinite(PointF point) noexcept { return std::isfinite(point.x) && std::isfinite(point.y); }

bool hasExtent(const GradientBrush& gradient) noexcept {
    if (gradient.isRadial()) {
        const auto& radial = static_cast<const RadialGradientBrush&>(gradient);
        const auto [rx, ry] = radial.radii();
        return isFinite(radial.centre()) && isFinite({rx, ry}) && rx > 0 && ry > 0;
    }
    const auto& linear = static_cast<const LinearGradientBrush&>(gradient);
    return isFinite(linear.start()) && isFinite(linear.end()) && linear.start() != linear.end();
}

bool isInvertible(const Matrix& matrix) noexcept {
    const auto& [a, b, c, d, e, f] = matrix.getElements();
    return matrix.isFinite() && static_cast<double>(a) * d != static_cast<double>(b) * c;
}

Paint lastStop(const GradientBrush& gradient) noexcept {
    const auto& stops = gradient.getStops();
    const auto stop =
        std::find_if(stops.rbegin(), stops.rend(), [](const StopPoint& each) { return !each.color.isEmpty(); });
    if (stop == stops.rend()) return {};
    return {.rgb = stop->color.get()->rgb(), .opacity = cutOpacity(gradient.getOpacity()) * cutOpacity(stop->opacity)};
}

Paint resolveGradient(const GradientBrush& gradient) noexcept {
    const auto& stops = gradient.getStops();
    const auto colored =
        std::count_if(stops.begin(), stops.end(), [](const StopPoint& stop) { return !stop.color.isEmpty(); });
    if (colored < 2 || !hasExtent(gradient) || !isInvertible(gradientMatrix(gradient))) return lastStop(gradient);
    return {.gradient = &gradient, .opacity = cutOpacity(gradient.getOpacity())};
}

}  // namespace

float cutOpacity(float opacity) noexcept { return opacity < 1 ? std::max(opacity, 0.0F) : 1.0F; }

Matrix gradientMatrix(const GradientBrush& gradient) noexcept {
    Matrix matrix = gradient.getMatrix();
    if (!gradient.isRadial()) return matrix;
    const auto& radial = static_cast<const RadialGradientBrush&>(gradient);
    const auto [rx, ry] = radial.radii();
    if (rx == ry) return matrix;
    const PointF centre = radial.centre();
    return matrix.translate(centre.x, centre.y).scale(1, ry / rx).translate(-centre.x, -centre.y);
}

Paint resolvePaint(const Brush* brush) noexcept {
    if (brush == nullptr) return {};
    if (brush->getBrushType() == BrushType::Gradient) return resolveGradient(static_cast<const GradientBrush&>(*brush));
    const auto& color = static_cast<const SolidColorBrush&>(*brush).getColor();
    if (color.isEmpty()) return {};
    return {.rgb = color.get()->rgb(), .opacity = cutOpacity(brush->getOpacity())};
}

Paint resolvePaint(const Stroke* stroke) noexcept {
    if (stroke == nullptr || !stroke->paints()) return {};
    return resolvePaint(stroke->getBrush().get());
}

Paint onFlatBox(const Paint& paint) noexcept { return paint.dependsOnBox() ? lastStop(*paint.gradient) : paint; }

}  // namespace VEXA
