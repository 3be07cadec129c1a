#include "vexa/cartesian/PlotLayout.h"

#include <cmath>

namespace VEXA {

namespace {

/// How thick an axis with its labels is across, and by how much the labels stick out along it: on the near side (left,
/// or below) and on the far side.
struct Extent {
    float thickness = 0;
    float near = 0;
    float far = 0;
};

/// What sticks out where labels are longer than the axis, apart from what sticks out at the start.
float excess(float labels, float axis, float start) noexcept {
    return labels > axis ? labels - axis - (start < 0 ? std::fabs(start) : 0) : 0;
}

Extent verticalExtent(const AxisSpace& axis, float areaHeight) noexcept {
    const RectF& labels = axis.labels;
    return {std::fabs(labels.x) + (axis.isAtMaximum ? labels.width : 0) + axis.captionThickness + axis.tickExtent,
            excess(labels.height, areaHeight, labels.y), labels.y < 0 ? std::fabs(labels.y) : 0};
}

Extent horizontalExtent(const AxisSpace& axis, float areaWidth) noexcept {
    const RectF& labels = axis.labels;
    return {std::fabs(labels.y) + (axis.isAtMaximum ? 0 : labels.height) + axis.captionThickness + axis.tickExtent,
            labels.x < 0 ? std::fabs(labels.x) : 0, excess(labels.width, areaWidth, labels.x)};
}

/// One direction of the rectangle: where it starts and how long it is.
struct Side {
    float& start;
    float& length;

    void moveStart(float by) const noexcept {
        start += by;
        length -= by;
    }
    /// Makes room for the axis that runs across this direction at its start or its end.
    void takeThickness(float thickness, bool isAtStart) const noexcept {
        if (isAtStart) start += thickness;
        length -= thickness;
    }
    /// Makes room for labels that stick out; on one side the thickness of the other axis is there for them already.
    void takeOverflow(const Extent& along, float thickness, bool isCoveredAtStart) const noexcept {
        if (isCoveredAtStart) {
            length -= along.far;
            if (along.near > thickness) moveStart(along.near - thickness);
        } else {
            moveStart(along.near);
            if (along.far > thickness) length -= along.far - thickness;
        }
    }
};

/// What is left of an overflow where the depth of the scene has room for it.
float beyondDepth(float overflow, const SceneDepth& scene) noexcept {
    if (!scene.is3D) return overflow;
    return overflow > scene.depth ? overflow - scene.depth : 0;
}

void layoutUpright(RectF& rect, const AxisSpace& valueAxis, const AxisSpace& categoryAxis,
                   const SceneDepth& scene) noexcept {
    Extent values = verticalExtent(valueAxis, rect.height);
    const Extent categories = horizontalExtent(categoryAxis, rect.width);
    values.near = beyondDepth(values.near, scene);
    const Side upright{rect.y, rect.height};
    upright.takeThickness(categories.thickness, categoryAxis.isAtMaximum);
    upright.takeOverflow(values, categories.thickness, categoryAxis.isAtMaximum);
    const Side across{rect.x, rect.width};
    across.takeThickness(values.thickness, !valueAxis.isAtMaximum);
    across.takeOverflow(categories, values.thickness, !valueAxis.isAtMaximum);
}

void layoutLying(RectF& rect, const AxisSpace& valueAxis, const AxisSpace& categoryAxis,
                 const SceneDepth& scene) noexcept {
    Extent values = horizontalExtent(valueAxis, rect.width);
    const Extent categories = verticalExtent(categoryAxis, rect.height);
    values.far = beyondDepth(values.far, scene);
    const Side across{rect.x, rect.width};
    across.takeThickness(categories.thickness, !categoryAxis.isAtMaximum);
    across.takeOverflow(values, categories.thickness, !categoryAxis.isAtMaximum);
    const Side upright{rect.y, rect.height};
    upright.takeThickness(values.thickness, valueAxis.isAtMaximum);
    upright.takeOverflow(categories, values.thickness, !valueAxis.isAtMaximum);
}

}  // namespace

RectF layoutPlotRect(const RectF& area, const AxisSpace& valueAxis, const AxisSpace& categoryAxis,
                     const SceneDepth& scene) noexcept {
    RectF rect = area;
    if (valueAxis.isVertical) {
        layoutUpright(rect, valueAxis, categoryAxis, scene);
    } else {
        layoutLying(rect, valueAxis, categoryAxis, scene);
    }
    if (!scene.is3D) return rect;
    return {rect.x, rect.y + scene.depth, rect.width - scene.depth, rect.height - scene.depth};
}

}  // namespace VEXA
