#pragma once

#include <cstddef>

#include "vexa/spider/SpiderScale.h"
#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// The tip of spoke `index` (from 1) of `count`, `radius` away from the centre at (0, 0): the first points to 12
/// o'clock, the others follow clockwise at equal angles. (0, 0) without spokes.
PointF spiderAxisPoint(float count, float radius, float index) noexcept;

/// Where the baseline of a caption begins that stands `offset` px outside the tip of its spoke: beside it, or centred
/// above or below the tip of a vertical spoke.
PointF spiderCaptionOrigin(PointF tip, const SizeF& text, float offset) noexcept;

/// The geometry of one web, computed once for a render. The centre is (0, 0).
class SpiderLayout {
public:
    SpiderLayout(std::size_t axisCount, float radius, const SpiderScale& scale);

    std::size_t axisCount() const noexcept { return directions_.size(); }
    float radius() const noexcept { return radius_; }
    const SpiderScale& scale() const noexcept { return scale_; }

    /// The point of a value on a spoke; `axis` counts from 0.
    PointF pointOf(std::size_t axis, float value) const noexcept;
    PointF tip(std::size_t axis) const noexcept { return pointAt(axis, radius_); }
    /// The corners of the ring at a value, one on each spoke.
    Vector<PointF> ring(float value) const;

private:
    struct Direction {
        double x = 0;
        double y = 0;
    };
    static Direction directionOf(double count, double index) noexcept;
    PointF pointAt(std::size_t axis, float distance) const noexcept;
    float distanceOf(float value) const noexcept;
    friend PointF spiderAxisPoint(float count, float radius, float index) noexcept;

    float radius_;
    SpiderScale scale_;
    Vector<Direction> directions_;
};

}  // namespace VEXA
