#include "vexa/cartesian/BarSolids.h"

#include <algorithm>

namespace VEXA {

namespace {

constexpr PaintedFace kFront{BarFace::Front, false};
constexpr PaintedFace kSide{BarFace::Side, true};
constexpr PaintedFace kFarSide{BarFace::FarSide, true};
constexpr PaintedFace kValueEnd{BarFace::ValueEnd, true};
constexpr PaintedFace kBaseEnd{BarFace::BaseEnd, true};

constexpr PaintedFace unshaded(PaintedFace face) { return {face.face, false}; }

/// The front face from `a` to `b`, two corners that lie across from each other.
struct Front {
    PointF a;
    PointF b;
};

Front frontOf(const BarAnchors& bar, float width, float depth, BarDirection direction) {
    const auto& [value, base] = bar;
    if (direction == BarDirection::Horizontal) {
        return {{base.x, value.y - width / 2}, {value.x, value.y + width / 2}};
    }
    const float left = value.x - width / 2 - depth / 2;
    return {{left, value.y}, {left + width, base.y}};
}

/// The cylinder stands on its base or lies on its left end: the two ends along its length, the one whose cap is seen
/// first, and its two sides.
struct Cylinder {
    float seenEnd;
    float otherEnd;
    float side1;
    float side2;
};

Cylinder cylinderOf(const BarAnchors& bar, float width, BarDirection direction) {
    const auto& [value, base] = bar;
    if (direction == BarDirection::Vertical) {
        return {std::min(value.y, base.y), std::max(value.y, base.y), value.x - width / 2, value.x + width / 2};
    }
    return {value.x, base.x, value.y - width / 2, value.y + width / 2};
}

}  // namespace

BoxFaces::BoxFaces(const BarRole& role, BarDirection direction) {
    switch (role.grouping) {
        case SerieGrouping::Overlapped:
        case SerieGrouping::Clustered:
            addSingle(role.sign, direction);
            break;
        case SerieGrouping::Stacked:
            addStacked(role, direction);
            break;
    }
}

void BoxFaces::add(std::initializer_list<PaintedFace> faces) {
    std::copy(faces.begin(), faces.end(), faces_.begin() + static_cast<std::ptrdiff_t>(count_));
    count_ += faces.size();
}

void BoxFaces::addSingle(int sign, BarDirection direction) {
    const bool isVertical = direction == BarDirection::Vertical;
    if (sign > 0) {
        isVertical ? add({unshaded(kBaseEnd), kFront, kSide, kValueEnd}) : add({kFarSide, kFront, kValueEnd, kSide});
    } else if (sign < 0) {
        isVertical ? add({kBaseEnd, kFront, kSide}) : add({kFarSide, kFront, kBaseEnd, kSide});
    }
}

void BoxFaces::addStacked(const BarRole& role, BarDirection direction) {
    const bool isVertical = direction == BarDirection::Vertical;
    if (role.isLastPositive && role.sign > 0) {
        isVertical ? add({unshaded(kBaseEnd), kFront, kSide, kValueEnd})
                   : add({unshaded(kFarSide), kFront, kSide, kValueEnd});
    }
    if (role.isLastNegative && role.sign < 0) isVertical ? add({kFront, kSide}) : add({kFront});
    if (role.isLowestNegative && role.sign < 0) isVertical ? add({kBaseEnd, kFront, kSide}) : add({kFront, kBaseEnd});
    add({kFront, kSide});
}

SolidFace boxFace(BarFace face, const BarAnchors& bar, float width, float depth, BarDirection direction) {
    const bool isVertical = direction == BarDirection::Vertical;
    const auto [a, b] = frontOf(bar, width, depth, direction);
    const auto joined = [depth](PointF p, PointF q) { return ribbon(p, q, depth); };
    const PointF corner1{b.x, a.y};  // the front runs a, corner1, b, corner2
    const PointF corner2{a.x, b.y};
    switch (face) {
        case BarFace::Front:
            return {a, corner1, b, corner2};
        case BarFace::Side:
            return isVertical ? joined(corner1, b) : joined(a, corner1);
        case BarFace::FarSide:
            return isVertical ? joined(a, corner2) : joined(corner2, b);
        case BarFace::ValueEnd:
            return isVertical ? joined(a, corner1) : joined(corner1, b);
        case BarFace::BaseEnd:
            return isVertical ? joined(corner2, b) : joined(a, corner2);
    }
    return {};
}

SmartPtr<Path> cylinderBody(const BarAnchors& bar, float width, float depth, BarDirection direction) {
    const auto [seen, other, side1, side2] = cylinderOf(bar, width, direction);
    const auto path = make<Path>();
    if (direction == BarDirection::Vertical) {
        path->moveTo({side1, seen - depth}).curveTo({side1, seen}, {side2, seen}, {side2, seen - depth});
        path->lineTo({side2, other - depth}).curveTo({side2, other}, {side1, other}, {side1, other - depth});
        path->lineTo({side1, seen - depth}).close();
    } else {
        path->moveTo({seen + depth, side1}).curveTo({seen, side1}, {seen, side2}, {seen + depth, side2});
        path->lineTo({other + depth, side2}).curveTo({other, side2}, {other, side1}, {other + depth, side1});
        path->lineTo({seen + depth, side1}).close();
    }
    return path;
}

SmartPtr<Path> cylinderCap(const BarAnchors& bar, float width, float depth, BarDirection direction) {
    const auto [first, other, side1, side2] = cylinderOf(bar, width, direction);
    const auto path = make<Path>();
    if (direction == BarDirection::Vertical) {
        path->moveTo({side1, first - depth}).curveTo({side1, first}, {side2, first}, {side2, first - depth});
        path->curveTo({side2, first - 2 * depth}, {side1, first - 2 * depth}, {side1, first - depth}).close();
    } else {
        const float end = std::max(first, other);  // the right one
        path->moveTo({end + depth, side1}).curveTo({end, side1}, {end, side2}, {end + depth, side2});
        path->curveTo({end + 2 * depth, side2}, {end + 2 * depth, side1}, {end + depth, side1}).close();
    }
    return path;
}

}  // namespace VEXA
