#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Geometry.h"
#include "vexa/support/values/Enumerations.h"

/// The layout of a legend. All lengths are in px. Items are laid out from the top left corner of the legend's box,
/// before the content is turned.
namespace VEXA {

/// What one item asks for.
struct LegendItemSize {
    float rowWidth = 0;  ///< with its caption on one line
    float spacing = 0;   ///< to the next item of a row
    SizeF size;          ///< with its caption broken into lines
};

/// What a legend of that size has room for from left to right, between its paddings: a turn by a quarter, either way,
/// lays the items along its height.
float legendRoom(const SizeF& size, ReferenceOrientation orientation, float padding) noexcept;

/// Where the items stand: in one row when all captions fit into `room` on one line, else one below the other.
Vector<RectF> layoutLegendItems(std::span<const LegendItemSize> items, float padding, float room);

/// The area that a legend has before its items are laid out: moved to its edge of the page and as long as that edge; at
/// the top and the bottom as high, at the sides as wide as it was. A free legend keeps its area.
RectF dockLegend(LegendPlacement placement, const RectF& area, const SizeF& page) noexcept;

/// A docked legend in the middle of its edge, no longer than its items.
struct LegendFit {
    RectF area;
    float shift = 0;  ///< how much further down the items stand
};

/// `area` is what dockLegend answers. The items of a legend at the top or the bottom are centred in its height when
/// they stand in a single row without padding. A free legend keeps its area.
LegendFit fitLegend(LegendPlacement placement, const RectF& area, std::span<const RectF> items) noexcept;

/// How content is turned inside its box: moved by `offset`, then turned about the new origin, clockwise.
struct LegendTurn {
    PointF offset;
    float degrees = 0;
};

/// Empty for an orientation that is none.
std::optional<LegendTurn> legendTurn(ReferenceOrientation orientation, const SizeF& box) noexcept;

/// How many items show nothing of themselves: they lie outside the legend's area, or where that leads out of the page.
/// `area` and `page` are in the same coordinates.
std::size_t countHiddenItems(std::span<const RectF> items, ReferenceOrientation orientation, const RectF& area,
                             const RectF& page) noexcept;

}  // namespace VEXA
