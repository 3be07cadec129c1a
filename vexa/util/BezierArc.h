#pragma once

#include "vexa/util/ArcData.h"

namespace VEXA {

/// A cubic Bézier curve.
struct BezierSegment {
    PointF from;
    PointF control1;
    PointF control2;
    PointF to;
};

/// An arc as cubic Bézier curves of equal extent, at most 90 degrees each, computed when asked for: nothing is
/// allocated. A sweep of 0, or one that is no number, gives one segment that stays at the start point; sweeps are cut
/// to a hundred turns. Coordinates are finite for a finite arc.
class BezierArc {
public:
    explicit BezierArc(const ArcData& arc) noexcept;

    /// At least 1.
    int segmentCount() const noexcept { return count_; }
    /// Segments run from the arc's start to its end. `index` counts from 0.
    BezierSegment segment(int index) const noexcept;

private:
    double angleAt(int joint) const noexcept;

    double cx_;
    double cy_;
    double rx_;
    double ry_;
    double start_;  // degrees, counter-clockwise like those of the step
    double step_ = 0;
    double handle_ = 0;  // length of the handles on the unit circle, along the direction of travel
    int count_ = 1;
};

}  // namespace VEXA
