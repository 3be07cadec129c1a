#include "vexa/pie/SliceGeometry.h"

#include <cmath>

#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr double kTurn = 2 * Math::kPi;
constexpr double kWhole = 0.0001;  // radians that a whole pie may be off

}  // namespace

bool SliceGeometry::isMoreThanHalf() const noexcept { return span() > Math::kPi; }

bool SliceGeometry::isWhole() const noexcept { return std::abs(span() - kTurn) < kWhole; }

bool SliceGeometry::isEmpty() const noexcept { return outerStart == outerEnd && !isMoreThanHalf(); }

SliceCutter::SliceCutter(SizeF size, float startAngle, SliceOrientation orientation, PieShapeType shape, double total)
    : size_(size),
      direction_(orientation == SliceOrientation::CounterClockwise ? 1 : -1),
      hasHole_(shape == PieShapeType::Doughnut),
      total_(total) {
    const double start = direction_ * Util::toRadians(startAngle);
    fraction_ = std::abs(start / kTurn);
    edge_ = edgeAt(start);
}

SliceGeometry SliceCutter::next(double value) {
    fraction_ += value / total_;
    const Edge from = edge_;
    const Edge& to = edge_ = edgeAt(fraction_ * direction_ * kTurn);
    if (direction_ > 0) return {size_, from.angle, to.angle, from.outer, to.outer, from.inner, to.inner};
    return {size_, to.angle + kTurn, from.angle + kTurn, to.outer, from.outer, to.inner, from.inner};
}

SliceCutter::Edge SliceCutter::edgeAt(double angle) const {
    SliceGeometry pie;
    pie.size = size_;
    const auto pointAt = [&](const SizeF& radii) {
        return Util::getArcEndPoint(pie.centre(), radii.width, radii.height, angle);
    };
    return {angle, pointAt(pie.outerRadii()), hasHole_ ? pointAt(pie.innerRadii()) : PointF()};
}

}  // namespace VEXA
