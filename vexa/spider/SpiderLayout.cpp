#include "vexa/spider/SpiderLayout.h"

#include <cmath>

#include "vexa/support/core/Math.h"

namespace VEXA {

namespace {

constexpr float kOnAxis = 0.0001F;  // px: a tip so near to the vertical lies on it

}  // namespace

// Clockwise from 12 o'clock. The angle is reduced to the nearest quarter turn first: with π in single precision an
// upright spoke of a large web would lean, and its caption would stand beside the tip.
SpiderLayout::Direction SpiderLayout::directionOf(double count, double index) noexcept {
    const double degrees = 360.0 * (index - 1) / count;
    const double quarters = std::round(degrees / 90.0);
    const double rest = (degrees - 90.0 * quarters) * Math::kPi / 180.0;
    const double sine = std::sin(rest);
    const double cosine = std::cos(rest);
    switch ((Math::toInt(std::fmod(quarters, 4.0)) + 4) % 4) {
        case 0:
            return {sine, -cosine};
        case 1:
            return {cosine, sine};
        case 2:
            return {-sine, cosine};
        default:
            return {-cosine, -sine};
    }
}

PointF spiderAxisPoint(float count, float radius, float index) noexcept {
    if (count == 0) return {};
    const auto direction = SpiderLayout::directionOf(count, index);
    return {static_cast<float>(radius * direction.x), static_cast<float>(radius * direction.y)};
}

PointF spiderCaptionOrigin(PointF tip, const SizeF& text, float offset) noexcept {
    if (std::abs(tip.x) >= kOnAxis) {
        return {tip.x > kOnAxis ? tip.x + offset : tip.x - (offset + text.width), tip.y + text.height / 2};
    }
    if (std::abs(tip.y) >= kOnAxis) {
        return {tip.x - text.width / 2, tip.y < 0 ? tip.y - offset : tip.y + offset + text.height};
    }
    return tip;
}

SpiderLayout::SpiderLayout(std::size_t axisCount, float radius, const SpiderScale& scale)
    : radius_(radius), scale_(scale) {
    directions_.reserve(axisCount);
    for (std::size_t axis = 1; axis <= axisCount; ++axis) {
        directions_.push_back(directionOf(static_cast<double>(axisCount), static_cast<double>(axis)));
    }
}

PointF SpiderLayout::pointAt(std::size_t axis, float distance) const noexcept {
    const Direction& direction = directions_[axis];
    return {static_cast<float>(distance * direction.x), static_cast<float>(distance * direction.y)};
}

// Finite also where radius times position is not: infinity times the 0 of an upright spoke would be no number.
float SpiderLayout::distanceOf(float value) const noexcept {
    return Math::toFloat(static_cast<double>(radius_) * scale_.position(value));
}

PointF SpiderLayout::pointOf(std::size_t axis, float value) const noexcept { return pointAt(axis, distanceOf(value)); }

Vector<PointF> SpiderLayout::ring(float value) const {
    Vector<PointF> corners;
    corners.reserve(axisCount());
    const float distance = distanceOf(value);
    for (std::size_t axis = 0; axis < axisCount(); ++axis) corners.push_back(pointAt(axis, distance));
    return corners;
}

}  // namespace VEXA
