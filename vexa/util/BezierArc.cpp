#include "vexa/util/BezierArc.h"

#include <algorithm>
#include <cmath>

#include "vexa/support/core/Math.h"

namespace VEXA {

namespace {

constexpr double kMaxSweep = 36'000;  // degrees
constexpr double kMaxSegment = 90;    // degrees; a cubic curve leaves a quarter of a circle by 0.03% of its radius

/// Handles of a curve over `degrees` of the unit circle, negative for negative degrees: 4/3 tan(extent / 4).
double handleOf(double degrees) noexcept {
    const double half = degrees * Math::kPi / 360;
    const double sine = std::sin(half);
    return sine == 0 ? 0 : std::copysign(4.0 / 3.0 * (1 - std::cos(half)) / sine, degrees);
}

}  // namespace

BezierArc::BezierArc(const ArcData& arc) noexcept : start_(-static_cast<double>(arc.startAngle)) {
    const RectF& box = arc.rect;
    const double right = Math::toFloat(static_cast<double>(box.x) + box.width);
    const double bottom = Math::toFloat(static_cast<double>(box.y) + box.height);
    cx_ = (box.x + right) * 0.5;
    cy_ = (box.y + bottom) * 0.5;
    rx_ = (right - box.x) * 0.5;
    ry_ = (bottom - box.y) * 0.5;
    if (!std::isfinite(arc.startAngle)) start_ = 0;
    const double sweep = std::isnan(arc.sweepAngle) ? 0 : std::clamp<double>(-arc.sweepAngle, -kMaxSweep, kMaxSweep);
    if (std::abs(sweep) > kMaxSegment) count_ = Math::toInt(std::ceil(std::abs(sweep) / kMaxSegment));
    step_ = sweep / count_;
    handle_ = handleOf(step_);
}

double BezierArc::angleAt(int joint) const noexcept { return (start_ + joint * step_) * Math::kPi / 180; }

BezierSegment BezierArc::segment(int index) const noexcept {
    const auto at = [this](double x, double y) {
        return PointF{Math::toFloat(cx_ + rx_ * x), Math::toFloat(cy_ - ry_ * y)};
    };
    const double c0 = std::cos(angleAt(index));
    const double s0 = std::sin(angleAt(index));
    const double c1 = std::cos(angleAt(index + 1));
    const double s1 = std::sin(angleAt(index + 1));
    const double k = handle_;
    return {at(c0, s0), at(c0 - k * s0, s0 + k * c0), at(c1 + k * s1, s1 - k * c1), at(c1, s1)};
}

}  // namespace VEXA
