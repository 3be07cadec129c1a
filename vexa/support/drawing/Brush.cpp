#include "vexa/support/drawing/Brush.h"

#include <algorithm>

namespace VEXA {

SmartPtr<Brush> SolidColorBrush::clone() const { return make<SolidColorBrush>(*this); }

SmartPtr<Brush> LinearGradientBrush::clone() const { return make<LinearGradientBrush>(*this); }

SmartPtr<Brush> RadialGradientBrush::clone() const { return make<RadialGradientBrush>(*this); }

bool GradientBrush::paints() const noexcept {
    const auto& stops = getStops();
    return std::any_of(stops.begin(), stops.end(), [](const StopPoint& stop) { return !stop.color.isEmpty(); });
}

const Vector<StopPoint>& GradientBrush::getStops() const noexcept {
    static const Immortal<Vector<StopPoint>> none;
    return stops_.isEmpty() ? none.value : stops_->points;
}

void GradientBrush::setStops(Vector<StopPoint> stops) {
    stops_ = make<StopList>();
    stops_->points = std::move(stops);
}

void GradientBrush::addStop(float offset, SmartPtr<Color> color, float opacity) {
    const bool isShared = !stops_.isEmpty() && stops_->referenceCount() > 1;
    if (stops_.isEmpty() || isShared) setStops(getStops());
    stops_->points.push_back({offset, std::move(color), opacity});
}

void GradientBrush::addMatrixTransform(float a, float b, float c, float d, float e, float f) noexcept {
    matrix_.multiply({a, b, c, d, e, f});
}

}  // namespace VEXA
