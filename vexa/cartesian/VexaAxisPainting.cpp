#include "vexa/cartesian/AxisCaption.h"
#include "vexa/cartesian/PlotEdge.h"
#include "vexa/cartesian/VexaPlotArea.h"

// How an axis paints itself; where it lies and what it measures is in VexaAxisObject.cpp.

namespace VEXA {

namespace {

void drawLine(VexaRenderContext& context, PointF from, PointF to) {
    context.drawLine(Length(from.x), Length(from.y), Length(to.x), Length(to.y));
}

/// Draws a line of the back plane on the front plane.
void drawLineInFront(VexaRenderContext& context, PointF from, PointF to, float depth) {
    context.translate(Length(-depth), Length(depth));
    drawLine(context, from, to);
    context.translate(Length(depth), Length(-depth));
}

}  // namespace

void VexaAxisObject::render(VexaRenderContext& context) {
    VexaPlotArea& plot = getPlotArea();
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const RectF axis = getAxisRect(context);
    const float depth = plot.isView3DMode() && isAtMaximum() ? plot.getSceneDepth() : 0;  // it lies on the back plane
    context.translate(Length(axis.x + depth), Length(axis.y - depth));
    if (tickMarks_) tickMarks_->render(context);
    drawLine(context, {0, 0}, {axis.width, axis.height});
    drawLabels(context, axis);
    if (!caption_->trim().isEmpty()) drawCaption(context, axis);
}

void VexaAxisObject::drawGridLines(VexaRenderContext& context) {
    if (gridLines_) gridLines_->render(context);
}

void VexaAxisObject::drawDepthEdges(VexaRenderContext& context) {
    VexaPlotArea& plot = getPlotArea();
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const auto [width, height] = plot.getAreaSize(context);
    const float depth = plot.getSceneDepth();
    const float across = plot.getAxis(!isCategory_).getCrossOffset(context);
    const PointF from = isVertical() ? PointF{across, 0} : PointF{0, across};
    const PointF to = isVertical() ? PointF{across, height} : PointF{width, across};
    if (isAtMaximum()) {
        drawLineInFront(context, from, to, depth);
    } else {
        drawLine(context, from, to);
    }
    if (isSamePlace(across, isVertical() ? width : height)) return;
    drawLineInFront(context, {0, isVertical() ? 0 : height}, {isVertical() ? 0 : width, height}, depth);
}

void VexaAxisObject::drawLabels(VexaRenderContext& context, const RectF& axis) {
    if (!displayValues_) return;
    const RenderContextScope scope(context.getRenderContext());
    const float height = getPlotArea().getPlotRect(context).height;
    const bool moves =
        isCategory_ && displayValues_->getDrawAtMin() && *intersection_ == AxisIntersection::AtCrossValue;
    if (moves && isVertical() && !isSamePlace(axis.x, 0)) context.translate(Length(-axis.x), Length());
    if (moves && !isVertical() && !isSamePlace(axis.y, 0) && !isSamePlace(axis.y, height))
        context.translate(Length(), Length(height - axis.y));
    displayValues_->render(context);
}

void VexaAxisObject::drawCaption(VexaRenderContext& context, const RectF& axis) {
    CaptionSpace space;
    space.isCategory = isCategory_;
    space.isVertical = isVertical();
    space.isAtMaximum = isAtMaximum();
    space.axis = axis;
    space.plotHeight = getPlotArea().getPlotRect(context).height;
    space.text = context.measureText(*caption_);
    space.offset = captionOffset_->pxSize();
    space.descent = context.getTextDescent();
    if (displayValues_) {
        space.labels = displayValues_->getLabelsSize(context);
        space.labelOffset = displayValues_->getOffset();
        space.isLabelAtEdge = displayValues_->getDrawAtMin();
    }
    const CaptionFrame frame = captionFrame(space);
    const RenderContextScope scope(context.getRenderContext());
    context.translate(Length(frame.origin.x), Length(frame.origin.y));
    context.rotate(frame.angle);
    context.setStroke(nullptr);
    context.setFill(make<SolidColorBrush>(*captionColor_));
    context.drawText(*caption_);
}

}  // namespace VEXA
