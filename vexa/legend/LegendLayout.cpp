#include "vexa/legend/LegendLayout.h"

#include <algorithm>

namespace VEXA {

namespace {

float rightOf(const RectF& rect) noexcept { return rect.x + rect.width; }

float bottomOf(const RectF& rect) noexcept { return rect.y + rect.height; }

/// Each item but the first brings the gap before it.
float rowLength(std::span<const LegendItemSize> items) noexcept {
    float length = 0;
    for (std::size_t i = 0; i < items.size(); ++i) length += items[i].rowWidth + (i == 0 ? 0.0F : items[i].spacing);
    return length;
}

LegendFit fitHeight(const RectF& area, std::span<const RectF> items) noexcept {
    const float bottom = items.empty() ? 0.0F : bottomOf(items.back());
    return {{area.x, (area.height - bottom) / 2, area.width, bottom}};
}

LegendFit fitWidth(const RectF& area, std::span<const RectF> items) noexcept {
    if (items.empty()) return {{area.width / 2, area.y, 0, area.height}};
    float right = rightOf(items.front());
    float height = items.front().height;
    float bottom = bottomOf(items.front());
    for (const RectF& item : items) {
        right = std::max(right, rightOf(item));
        height = std::max(height, item.height);
        bottom = std::max(bottom, bottomOf(item));
    }
    const float shift = height == bottom ? (area.height - bottom) / 2 : 0.0F;
    return {{(area.width - right) / 2, area.y, right, area.height}, shift};
}

struct Edges {
    float left, top, right, bottom;
};

/// The part of an area that the page shows, from the area's own corner on.
Edges shownPart(const RectF& area, const RectF& page) noexcept {
    return {std::max(0.0F, page.x - area.x), std::max(0.0F, page.y - area.y),
            std::min(area.width, rightOf(page) - area.x), std::min(area.height, bottomOf(page) - area.y)};
}

/// A part of the box as its content sees it, which is turned with respect to the box.
Edges turnedBack(const Edges& part, ReferenceOrientation orientation, const SizeF& box) noexcept {
    const Edges mirrored{box.width - part.right, box.height - part.bottom, box.width - part.left,
                         box.height - part.top};
    switch (orientation) {
        case ReferenceOrientation::Rotate90:
            return {part.top, mirrored.left, part.bottom, mirrored.right};
        case ReferenceOrientation::Rotate180:
            return mirrored;
        case ReferenceOrientation::Rotate270:
            return {mirrored.top, part.left, mirrored.bottom, part.right};
        case ReferenceOrientation::Rotate0:
            break;
    }
    return part;
}

/// Whether an item has no part between two edges. One without extent at the first of them is inside; nothing is
/// between edges that leave no room.
bool isOutside(float begin, float end, float from, float to) noexcept {
    return to <= from || begin >= to || (end <= from && begin < from);
}

}  // namespace

float legendRoom(const SizeF& size, ReferenceOrientation orientation, float padding) noexcept {
    const bool isUpright =
        orientation == ReferenceOrientation::Rotate90 || orientation == ReferenceOrientation::Rotate270;
    return (isUpright ? size.height : size.width) - 2 * padding;
}

Vector<RectF> layoutLegendItems(std::span<const LegendItemSize> items, float padding, float room) {
    const bool isList = rowLength(items) > room;
    PointF cursor{padding, padding};
    Vector<RectF> rects;
    rects.reserve(items.size());
    for (const LegendItemSize& item : items) {
        rects.push_back({cursor.x, cursor.y, item.size.width, item.size.height});
        if (isList) {
            cursor.y = bottomOf(rects.back());
        } else {
            cursor.x += item.rowWidth + item.spacing;
        }
    }
    return rects;
}

RectF dockLegend(LegendPlacement placement, const RectF& area, const SizeF& page) noexcept {
    switch (placement) {
        case LegendPlacement::Top:
            return {area.x, 0, page.width, area.height};
        case LegendPlacement::Left:
            return {0, area.y, area.width, page.height};
        case LegendPlacement::Bottom:
            return {area.x, page.height - area.height, page.width, area.height};
        case LegendPlacement::Right:
            return {page.width - area.width, area.y, area.width, page.height};
        case LegendPlacement::Free:
            break;
    }
    return area;
}

LegendFit fitLegend(LegendPlacement placement, const RectF& area, std::span<const RectF> items) noexcept {
    switch (placement) {
        case LegendPlacement::Left:
        case LegendPlacement::Right:
            return fitHeight(area, items);
        case LegendPlacement::Top:
        case LegendPlacement::Bottom:
            return fitWidth(area, items);
        case LegendPlacement::Free:
            break;
    }
    return {area};
}

std::optional<LegendTurn> legendTurn(ReferenceOrientation orientation, const SizeF& box) noexcept {
    switch (orientation) {
        case ReferenceOrientation::Rotate0:
            return LegendTurn();
        case ReferenceOrientation::Rotate90:
            return LegendTurn{{box.width, 0}, 90};
        case ReferenceOrientation::Rotate180:
            return LegendTurn{{box.width, box.height}, 180};
        case ReferenceOrientation::Rotate270:
            return LegendTurn{{0, box.height}, 270};
    }
    return std::nullopt;
}

std::size_t countHiddenItems(std::span<const RectF> items, ReferenceOrientation orientation, const RectF& area,
                             const RectF& page) noexcept {
    const Edges shown = turnedBack(shownPart(area, page), orientation, {area.width, area.height});
    return static_cast<std::size_t>(std::count_if(items.begin(), items.end(), [&](const RectF& item) {
        return isOutside(item.x, rightOf(item), shown.left, shown.right) ||
               isOutside(item.y, bottomOf(item), shown.top, shown.bottom);
    }));
}

}  // namespace VEXA
