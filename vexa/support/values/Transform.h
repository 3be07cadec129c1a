#pragma once

#include <array>
#include <cstdint>

#include "vexa/support/values/Length.h"

namespace VEXA {

enum class TransformKind : std::int32_t {
    None = 0,
    Matrix = 1,
    Translate = 2,
    Scale = 3,
    Rotate = 4,
    SkewX = 5,
    SkewY = 6
};

/// One entry of an SVG-style transform list. Skews are stored as tangents.
struct Transform {
    TransformKind kind = TransformKind::None;
    std::array<double, 6> numbers{};  ///< matrix: a to f; scale: sx, sy; rotate: degrees; skew: tangent
    std::array<Length, 2> lengths{};  ///< translate: tx, ty; rotate: centre
    friend bool operator==(const Transform&, const Transform&) = default;
};

VEXA_VALUE_TRAITS(Vector<Transform>);

}  // namespace VEXA
