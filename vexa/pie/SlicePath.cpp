#include "vexa/pie/SlicePath.h"

#include "vexa/support/core/Math.h"
#include "vexa/util/BezierArc.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

// Four curves at most for each of two arcs, a start, two lines and the end.
constexpr std::size_t kVerbs = 12;
constexpr std::size_t kPoints = 27;

SmartPtr<Path> startAt(PointF point) {
    auto path = make<Path>();
    path->reserve(kVerbs, kPoints);
    path->moveTo(point);
    return path;
}

BezierArc arcOf(PointF from, PointF to, const SizeF& radii, bool isLarge, bool isClockwise) {
    return BezierArc(Util::convertArc(from, to, radii.width, radii.height, 0, isLarge, isClockwise));
}

void append(Path& path, const BezierArc& arc) {
    for (int i = 0; i < arc.segmentCount(); ++i) {
        const BezierSegment segment = arc.segment(i);
        path.curveTo(segment.control1, segment.control2, segment.to);
    }
}

void appendBackwards(Path& path, const BezierArc& arc) {
    for (int i = arc.segmentCount() - 1; i >= 0; --i) {
        const BezierSegment segment = arc.segment(i);
        path.curveTo(segment.control2, segment.control1, segment.from);
    }
}

PointF lowered(PointF point, float depth) { return {point.x, Math::toFloat(static_cast<double>(point.y) + depth)}; }

void appendEllipse(Path& path, PointF centre, const SizeF& radii) {
    path.append(*PathCommand::ellipse(centre.x, centre.y, radii.width, radii.height));
}

}  // namespace

SmartPtr<Path> slicePath(const SliceGeometry& slice) {
    SmartPtr<Path> path = startAt(slice.outerStart);
    const SizeF radii = slice.outerRadii();
    if (slice.isWhole()) {
        appendEllipse(*path, slice.centre(), radii);
    } else {
        append(*path, arcOf(slice.outerStart, slice.outerEnd, radii, slice.isMoreThanHalf(), false));
    }
    path->lineTo(slice.centre()).close();
    return path;
}

SmartPtr<Path> segmentPath(const SliceGeometry& slice) {
    SmartPtr<Path> path = startAt(slice.outerStart);
    if (slice.isWhole()) {
        appendEllipse(*path, slice.centre(), slice.outerRadii());
        appendEllipse(*path, slice.centre(), slice.innerRadii());
    } else {
        const bool isLarge = slice.isMoreThanHalf();
        append(*path, arcOf(slice.outerStart, slice.outerEnd, slice.outerRadii(), isLarge, false));
        path->lineTo(slice.innerEnd);
        appendBackwards(*path, arcOf(slice.innerStart, slice.innerEnd, slice.innerRadii(), isLarge, false));
        path->lineTo(slice.outerStart);
    }
    path->close();
    return path;
}

SmartPtr<Path> wallPath(const WallEnds& ends, const SizeF& radii, float depth) {
    const PointF lowerFrom = lowered(ends.from, depth);
    const PointF lowerTo = lowered(ends.to, depth);
    SmartPtr<Path> path = startAt(ends.from);
    append(*path, arcOf(ends.from, ends.to, radii, false, false));
    path->lineTo(lowerTo);
    append(*path, arcOf(lowerTo, lowerFrom, radii, false, true));
    path->close();
    return path;
}

}  // namespace VEXA
