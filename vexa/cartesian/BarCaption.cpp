#include "vexa/cartesian/BarCaption.h"

#include <cmath>

namespace VEXA {

namespace {

/// The caption goes with the solid, which stands half its depth to the left (boxes), or a depth back (cylinders).
PointF shownValuePoint(const CaptionedBar& bar) noexcept {
    PointF point = bar.anchors.value;
    if (!bar.isBarChart) return point;
    if (bar.direction == BarDirection::Vertical) {
        (bar.isCylinder ? point.y : point.x) -= bar.isCylinder ? bar.depth : bar.depth / 2;
    } else if (bar.isCylinder) {
        point.x += bar.depth;
    }
    return point;
}

PointF placeVertically(const CaptionedBar& bar, CaptionPlacement placement, SizeF text, float offset) noexcept {
    const PointF value = shownValuePoint(bar);
    const float base = bar.anchors.base.y;
    const bool up = base >= bar.anchors.value.y;
    const float half = std::abs(base - bar.anchors.value.y) / 2;
    const float x = value.x - text.width / 2;
    switch (placement) {
        case CaptionPlacement::Default:
        case CaptionPlacement::OutsideEnd:
            return {x, up ? value.y - offset - bar.depth : value.y + offset + text.height};
        case CaptionPlacement::Center:
            return {x, (up ? value.y + half : value.y - half) + text.height / 2};
        case CaptionPlacement::InsideEnd:
            return {x, up ? value.y + offset + text.height : value.y - offset};
        case CaptionPlacement::InsideBase:
            return {x, up ? base - offset : base + offset + text.height};
    }
    return value;
}

PointF placeHorizontally(const CaptionedBar& bar, CaptionPlacement placement, SizeF text, float offset) noexcept {
    const PointF value = shownValuePoint(bar);
    const float base = bar.anchors.base.x;
    const bool right = base <= bar.anchors.value.x;
    const float half = std::abs(base - bar.anchors.value.x) / 2;
    const float y = value.y + text.height / 2;
    switch (placement) {
        case CaptionPlacement::Default:
        case CaptionPlacement::OutsideEnd:
            return {right ? value.x + offset + bar.depth : value.x - offset - text.width, y};
        case CaptionPlacement::Center:
            return {(right ? value.x - half : value.x + half) - text.width / 2, y};
        case CaptionPlacement::InsideEnd:
            return {right ? value.x - offset - text.width : value.x + offset, y};
        case CaptionPlacement::InsideBase:
            return {right ? base + offset : base - offset - text.width, y};
    }
    return value;
}

}  // namespace

PointF placeBarCaption(const CaptionedBar& bar, CaptionPlacement placement, SizeF text, float offset) noexcept {
    return bar.direction == BarDirection::Vertical ? placeVertically(bar, placement, text, offset)
                                                   : placeHorizontally(bar, placement, text, offset);
}

}  // namespace VEXA
