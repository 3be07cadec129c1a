#include <algorithm>
#include <cmath>

#include "vexa/support/drawing/Path.h"

namespace VEXA {

namespace {

/// Length of the handles of a cubic curve that follows a quarter of the unit circle: 4/3 (√2 - 1).
constexpr float kQuarterHandle = 0.55228475F;

/// A quarter of an ellipse to `to`; the outline turns at `corner`, where the tangents of both ends meet.
void quarterTo(Path& path, PointF from, PointF corner, PointF to) {
    const auto towards = [corner](PointF end) {
        return PointF{end.x + (corner.x - end.x) * kQuarterHandle, end.y + (corner.y - end.y) * kQuarterHandle};
    };
    path.curveTo(towards(from), towards(to), to);
}

void roundedRectangle(Path& path, float x, float y, float width, float height, float rx, float ry) {
    const float right = x + width;
    const float bottom = y + height;
    const float dx = std::copysign(std::min(rx, std::abs(width) / 2), width);
    const float dy = std::copysign(std::min(ry, std::abs(height) / 2), height);
    path.moveTo({x + dx, y}).lineTo({right - dx, y});
    quarterTo(path, {right - dx, y}, {right, y}, {right, y + dy});
    path.lineTo({right, bottom - dy});
    quarterTo(path, {right, bottom - dy}, {right, bottom}, {right - dx, bottom});
    path.lineTo({x + dx, bottom});
    quarterTo(path, {x + dx, bottom}, {x, bottom}, {x, bottom - dy});
    path.lineTo({x, y + dy});
    quarterTo(path, {x, y + dy}, {x, y}, {x + dx, y});
}

}  // namespace

SmartPtr<Path> PathCommand::rectangle(float x, float y, float width, float height, float rx, float ry) {
    const SmartPtr<Path> path = make<Path>();
    if (rx > 0 && ry > 0) {
        path->reserve(10, 17);
        roundedRectangle(*path, x, y, width, height, rx, ry);
    } else {
        path->reserve(5, 4);
        path->moveTo({x, y}).lineTo({x + width, y}).lineTo({x + width, y + height}).lineTo({x, y + height});
    }
    path->close();
    return path;
}

SmartPtr<Path> PathCommand::ellipse(float cx, float cy, float rx, float ry) {
    const SmartPtr<Path> path = make<Path>();
    path->reserve(6, 13);
    const PointF right{cx + rx, cy};
    const PointF bottom{cx, cy + ry};
    const PointF left{cx - rx, cy};
    const PointF top{cx, cy - ry};
    path->moveTo(right);
    quarterTo(*path, right, {right.x, bottom.y}, bottom);
    quarterTo(*path, bottom, {left.x, bottom.y}, left);
    quarterTo(*path, left, {left.x, top.y}, top);
    quarterTo(*path, top, {right.x, top.y}, right);
    path->close();
    return path;
}

SmartPtr<Path> PathCommand::polygon(const Vector<PointF>& points, bool closed) {
    const SmartPtr<Path> path = make<Path>();
    path->reserve(points.size() + 2, points.size() + 1);
    for (const PointF& point : points) path->lineTo(point);
    if (points.size() == 1) path->lineTo(points.front());
    if (closed) path->close();
    return path;
}

}  // namespace VEXA
