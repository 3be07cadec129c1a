#pragma once

#include "vexa/support/drawing/Geometry.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA {

/// A slice of an ellipse that fills the box from (0, 0) to `size`. Angles are radians from 3 o'clock, growing
/// counter-clockwise on the screen; the slice runs from the smaller one to the larger one.
struct SliceGeometry {
    SizeF size;
    double startAngle = 0;
    double endAngle = 0;
    PointF outerStart;  ///< on the rim at the two angles
    PointF outerEnd;
    PointF innerStart;  ///< on the rim of the hole; doughnuts only
    PointF innerEnd;

    PointF centre() const noexcept { return {size.width / 2, size.height / 2}; }
    SizeF outerRadii() const noexcept { return {size.width / 2, size.height / 2}; }
    SizeF innerRadii() const noexcept { return {size.width / 2 / 2, size.height / 2 / 2}; }
    double span() const noexcept { return endAngle - startAngle; }
    double middleAngle() const noexcept { return (startAngle + endAngle) / 2; }
    bool isMoreThanHalf() const noexcept;
    /// Whether the slice is the whole pie.
    bool isWhole() const noexcept;
    /// Whether both edges are the same: there is nothing to see.
    bool isEmpty() const noexcept;
};

/// Cuts a pie into slices, one after the other.
class SliceCutter {
public:
    /// `startAngle` in degrees from 3 o'clock, measured in the direction in which the slices follow each other. `total`
    /// is the sum of all values. REQUIRES: a finite angle, a finite total above 0.
    SliceCutter(SizeF size, float startAngle, SliceOrientation orientation, PieShapeType shape, double total);

    /// The slice for a value's share of the total; it begins where the one before ends.
    SliceGeometry next(double value);

private:
    struct Edge {
        double angle = 0;
        PointF outer;
        PointF inner;
    };
    Edge edgeAt(double angle) const;

    SizeF size_;
    double direction_;  // 1 counter-clockwise, -1 clockwise
    bool hasHole_;
    double total_;
    double fraction_;  // of a turn, from 3 o'clock to the end of the last slice
    Edge edge_;
};

}  // namespace VEXA
