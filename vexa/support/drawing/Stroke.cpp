#include "vexa/support/drawing/Stroke.h"

#include <cmath>

namespace VEXA {

void Stroke::setOpacity(float opacity) {
    if (brush_.isEmpty()) return;
    brush_ = brush_->clone();
    brush_->setOpacity(opacity);
}

bool Stroke::paints() const noexcept {
    return thickness_ > 0 && std::isfinite(thickness_) && !brush_.isEmpty() && brush_.get()->paints();
}

bool Stroke::isDashed() const noexcept {
    double sum = 0;
    for (const float length : dashArray_) {
        if (!std::isfinite(length) || length < 0) return false;
        sum += length;
    }
    return sum > 0;
}

}  // namespace VEXA
