#pragma once

#include <cstdint>

#include "vexa/support/drawing/Brush.h"
#include "vexa/support/drawing/Stroke.h"

namespace VEXA {

/// What a brush comes to when it is used: nothing, one colour, or a gradient with two stops or more, a matrix that can
/// be inverted and an extent. Surfaces need not look for the odd cases themselves.
struct Paint {
    const GradientBrush* gradient = nullptr;  ///< set for a gradient, owned by the brush
    std::uint32_t rgb = 0;                    ///< the colour where there is no gradient, 0xRRGGBB
    float opacity = 0;                        ///< above 0 up to 1; 0 paints nothing

    bool paints() const noexcept { return opacity > 0; }
    /// True for a gradient that is stretched over the box of the shape it paints.
    bool dependsOnBox() const noexcept {
        return gradient != nullptr && gradient->getUnits() != GradientUnits::UserSpaceOnUse;
    }
};

/// Stops without a colour do not count. A single stop is a colour; so is the last stop of a gradient without extent.
Paint resolvePaint(const Brush* brush) noexcept;
/// Nothing for a stroke that paints nothing.
Paint resolvePaint(const Stroke* stroke) noexcept;
/// The same paint on a shape whose box has no width or no height: there a gradient over the box is its last stop.
Paint onFlatBox(const Paint& paint) noexcept;

/// 0 to 1; what is no number is 1.
float cutOpacity(float opacity) noexcept;

/// The matrix of a gradient with one radius: for an ellipse, that of a circle of radius rx, stretched about its centre.
Matrix gradientMatrix(const GradientBrush& gradient) noexcept;

}  // namespace VEXA
