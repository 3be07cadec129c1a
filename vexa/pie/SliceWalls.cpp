#include "vexa/pie/SliceWalls.h"

#include <cmath>

#include "vexa/support/core/Math.h"

namespace VEXA {

namespace {

constexpr float kSameHeight = 0.001F;  // px
constexpr double kSameAngle = 1e-6;    // radians

/// Half of a pie is not wide: what rounding adds to it would give it the wall of the other half too.
bool isWiderThanHalf(const SliceGeometry& slice) noexcept { return slice.span() > Math::kPi + kSameAngle; }

/// On which side of a level line the ends of a rim lie. A point on the line is on both.
struct RimSides {
    RimSides(PointF start, PointF end, float line) noexcept
        : startsAbove(start.y <= line),
          startsBelow(start.y >= line),
          endsAbove(end.y <= line),
          endsBelow(end.y >= line),
          areLevel(std::abs(start.y - end.y) < kSameHeight) {}

    bool startsAbove;
    bool startsBelow;
    bool endsAbove;
    bool endsBelow;
    bool areLevel;
};

}  // namespace

// The order of the cases decides where an end lies on the line.
std::optional<WallEnds> outerWall(const SliceGeometry& slice) noexcept {
    const auto& [width, height] = slice.size;
    const PointF left{0, height / 2};
    const PointF right{width, height / 2};
    const RimSides rim(slice.outerStart, slice.outerEnd, height / 2);
    const bool isWide = isWiderThanHalf(slice);
    if (isWide && rim.areLevel) return WallEnds{left, right};
    if (rim.startsAbove && rim.endsBelow) return WallEnds{left, slice.outerEnd};
    if (rim.startsBelow && rim.endsAbove) return WallEnds{slice.outerStart, right};
    if (isWide && rim.startsAbove) return WallEnds{left, right};
    if (!isWide && rim.startsBelow) return WallEnds{slice.outerStart, slice.outerEnd};
    return std::nullopt;
}

std::optional<WallEnds> innerWall(const SliceGeometry& slice) noexcept {
    const auto& [width, height] = slice.size;
    const PointF left{width / 4, height / 2};
    const PointF right{width / 4 * 3, height / 2};
    const RimSides rim(slice.innerStart, slice.innerEnd, height / 2);
    const bool isWide = isWiderThanHalf(slice);
    if (isWide && rim.areLevel) return WallEnds{right, left};
    if (rim.startsAbove && rim.endsBelow) return WallEnds{slice.innerStart, left};
    if (rim.startsBelow && rim.endsAbove) return WallEnds{right, slice.innerEnd};
    if (isWide && rim.startsBelow) return WallEnds{right, left};
    if (!isWide && rim.startsAbove) return WallEnds{slice.innerStart, slice.innerEnd};
    return std::nullopt;
}

}  // namespace VEXA
