#pragma once

#include "vexa/support/core/SmartPtr.h"
#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

enum class PathVerb : std::uint8_t { MoveTo, LineTo, CurveTo, Close };

/// An outline of lines and cubic Bézier curves. Paths fill by the even-odd rule. It always starts with a MoveTo: a line
/// or a curve that comes first starts at its own first point, a Close that comes first is nothing.
class Path final : public Object {
public:
    Path& moveTo(PointF to);
    Path& lineTo(PointF to);
    Path& curveTo(PointF control1, PointF control2, PointF to);
    Path& close();
    /// Adds all of another path behind this one.
    Path& append(const Path& other);
    void reserve(std::size_t verbs, std::size_t points);

    /// One point for MoveTo and LineTo, three for CurveTo, none for Close, in the order of the verbs.
    const Vector<PathVerb>& verbs() const noexcept { return verbs_; }
    const Vector<PointF>& points() const noexcept { return points_; }
    bool isEmpty() const noexcept { return verbs_.empty(); }

private:
    Vector<PathVerb> verbs_;
    Vector<PointF> points_;
};

/// Makers of common paths.
class PathCommand {
public:
    /// Clockwise from the top left corner; rounded when both radii are above 0 (cut to half the sides).
    static SmartPtr<Path> rectangle(float x, float y, float width, float height, float rx, float ry);
    /// Starts at (cx + rx, cy), runs clockwise and closes: four curves.
    static SmartPtr<Path> ellipse(float cx, float cy, float rx, float ry);
    /// A single point is a line of no length, which round caps show as a dot. Empty without points.
    static SmartPtr<Path> polygon(const Vector<PointF>& points, bool closed);
};

}  // namespace VEXA
