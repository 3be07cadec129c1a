#include "vexa/cartesian/BarGeometry.h"

namespace VEXA {

RectF flatBar(const BarAnchors& bar, float width, BarDirection direction) noexcept {
    const auto& [value, base] = bar;
    if (direction == BarDirection::Vertical) {
        const float left = value.x - width / 2;
        return value.y < base.y ? RectF{left, value.y, width, base.y - value.y}
                                : RectF{left, base.y, width, value.y - base.y};
    }
    const float top = value.y - width / 2;
    return value.x > base.x ? RectF{base.x, top, value.x - base.x, width}
                            : RectF{value.x, top, base.x - value.x, width};
}

}  // namespace VEXA
