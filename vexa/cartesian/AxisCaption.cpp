#include "vexa/cartesian/AxisCaption.h"

#include "vexa/cartesian/PlotEdge.h"

namespace VEXA {

namespace {

/// Left of a vertical axis; how far the labels reach is known on the axis line or, for labels at the edge, from there.
float leftOfAxis(const CaptionSpace& space) noexcept {
    const float gap = space.offset + space.descent;
    const float labels = space.labels.width + space.labelOffset;
    if (!space.isCategory || isSamePlace(space.axis.x, 0)) return -(labels + gap);
    return -space.axis.x - (space.isLabelAtEdge ? labels : 0) - gap;
}

/// Below a horizontal axis, at the foot of the plot.
float belowPlot(const CaptionSpace& space) noexcept {
    const float foot = space.plotHeight - space.axis.y + space.text.height + space.offset;
    const bool isInside = !isSamePlace(space.axis.y, 0) && !isSamePlace(space.axis.y, space.plotHeight);
    const bool hasLabelsAbove = !space.isCategory || !isInside || space.isLabelAtEdge;
    return hasLabelsAbove ? foot + space.labels.height + space.labelOffset : foot;
}

}  // namespace

CaptionFrame captionFrame(const CaptionSpace& space) noexcept {
    const float half = space.text.width / 2;
    const float gap = space.offset + space.labelOffset + space.descent;
    if (space.isVertical) {
        const float middle = space.axis.height / 2;
        if (space.isAtMaximum) return {{space.labels.width + gap, middle - half}, 90};
        return {{leftOfAxis(space), middle + half}, -90};
    }
    const float x = space.axis.width / 2 - half;
    if (space.isAtMaximum) return {{x, space.axis.y - space.labels.height - gap}, 0};
    return {{x, belowPlot(space)}, 0};
}

}  // namespace VEXA
