#include "vexa/support/drawing/Brush.h"

#include <algorithm>

namespace VEXA {

SmartPtr<Brush> SolidColorBrush::clone() const { return make<SolidColorBrush>(*this); }

SmartPtr<Brush> LinearGradientBrush::clone() const { return make<LinearGradientBrush>(*this); }

SmartPtr<Brush> RadialGradientBrush::clone() const { return make<RadialGradientBrush>(*this); }

bool GradientBrush::paints() const noexcept {
    return std::any_of(stops_.begin(), stops_.end(), [](const StopPoint& stop) { return !stop.color.isEmpty(); });
}

void GradientBrush::addStop(float offset, SmartPtr<Color> color, float opacity) {
    stops_.push_back({offset, std::move(color), opacity});
}

void GradientBrush::addMatrixTransform(float a, float b, float c, float d, float e, float f) noexcept {
    matrix_.multiply({a, b, c, d, e, f});
}

}  // namespace VEXA
