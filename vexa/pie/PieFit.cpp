#include "vexa/pie/PieFit.h"

#include <algorithm>

namespace VEXA {

namespace {

constexpr float kTilt = 0.85F;            // height of a pie in the 3-D view for each px of its width
constexpr float kSmallestPie = 30.0F;     // px; captions do not make a pie smaller than that
constexpr float kSmallestTilted = 25.5F;  // the height of the smallest pie in the 3-D view

RectF deflated(const RectF& box, float margin) noexcept {
    return {box.x + margin, box.y + margin, box.width - 2 * margin, box.height - 2 * margin};
}

}  // namespace

float pieSide(const RectF& area) noexcept { return std::min(area.width, area.height); }

PieFit fitPie(const RectF& area, bool isView3D, std::optional<float> captionMargin) noexcept {
    const float side = pieSide(area);
    const float height = isView3D ? side * kTilt : side;
    PieFit fit{{area.x + (area.width - side) * 0.5F, area.y + (area.height - height) * 0.5F, side, height}};
    if (!captionMargin) return fit;
    const float left = side - 2 * *captionMargin;
    const float leftTilted = height - 2 * *captionMargin;
    fit.captionsFit = !(left <= kSmallestPie) && !(isView3D && leftTilted <= kSmallestTilted);
    if (fit.captionsFit) fit.box = deflated(fit.box, *captionMargin);
    return fit;
}

}  // namespace VEXA
