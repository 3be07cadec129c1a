#include <cmath>
#include <string>

#include "vexa/cartesian/BarCaption.h"
#include "vexa/cartesian/ChartPass.h"
#include "vexa/cartesian/PointStyle.h"
#include "vexa/cartesian/VexaContainerObject.h"
#include "vexa/style/Marker.h"

// How a data point is painted: the bar below the axes, caption and marker above them.

namespace VEXA {

namespace {

PointPlace placeOf(const VexaContainerObject& chart, const VexaDataPoint& wanted) {
    for (std::size_t s = 0; s < chart.getSeries().size(); ++s) {
        const auto& points = chart.getSeries()[s]->getDataPoints();
        for (std::size_t p = 0; p < points.size(); ++p) {
            if (points[p].get() == &wanted) return {s, p};
        }
    }
    throwEmptySmartPtr();
}

bool isBoxMoved(const ChartPass& pass) {
    return pass.is3D() && pass.isBarChart() && pass.direction() == BarDirection::Vertical;
}

}  // namespace

void VexaDataPoint::render(VexaRenderContext& context) {
    VexaContainerObject& chart = VexaContainerObject::of(*this);
    if (chart.getContainerKind() != ContainerKind::Bar) return;
    PointStyle style(context);
    render(context, ChartPass(chart, context), placeOf(chart, *this), style);
}

void VexaDataPoint::renderOverlay(VexaRenderContext& context) {
    VexaContainerObject& chart = VexaContainerObject::of(*this);
    const ChartPass pass(chart, context);
    PointStyle style(context);
    if (pass.areCaptionsShown()) renderOverlay(context, pass, placeOf(chart, *this), style);
}

void VexaDataPoint::render(VexaRenderContext& context, const ChartPass& pass, PointPlace place, PointStyle& style) {
    if (value_->isNone()) return;
    style.use(*this);
    if (!pass.is3D()) {
        drawFlat(context, pass, pass.anchorsOf(*this, place));
    } else if (pass.isCylinder()) {
        drawCylinder(context, pass, place, style);
    } else {
        drawBox(context, pass, place, style);
    }
}

void VexaDataPoint::drawFlat(VexaRenderContext& context, const ChartPass& pass, const BarAnchors& bar) {
    const RectF rect = flatBar(bar, getWidth(), pass.direction());
    context.getRenderContext()->drawRectangle(rect.x, rect.y, rect.width, rect.height, 0, 0);
}

void VexaDataPoint::drawBox(VexaRenderContext& context, const ChartPass& pass, PointPlace place, PointStyle& style) {
    const BarAnchors bar = pass.anchorsOf(*this, place);
    const BoxFaces seen(pass.roleOf(*this, place), pass.direction());
    for (const auto& [face, isShaded] : seen.faces()) {
        context.setFill(isShaded ? style.side(pass.shading()) : style.front());
        drawFace(context, boxFace(face, bar, getWidth(), pass.depth(), pass.direction()));
    }
}

void VexaDataPoint::drawCylinder(VexaRenderContext& context, const ChartPass& pass, PointPlace place,
                                 PointStyle& style) {
    const BarAnchors bar = pass.anchorsOf(*this, place);
    const bool isUpright = pass.direction() == BarDirection::Vertical;
    context.setFill(style.cylinder(isUpright, pass.shading()));
    context.drawPath(cylinderBody(bar, getWidth(), pass.depth(), pass.direction()));
    if (!pass.hasCap(*this, place)) return;
    context.setFill(style.side(pass.shading()));
    context.drawPath(cylinderCap(bar, getWidth(), pass.depth(), pass.direction()));
}

bool VexaDataPoint::hasOverlay() const {
    return !value_->isNone() && (*marker_ != MarkerType::None || !caption_->isEmpty());
}

void VexaDataPoint::renderOverlay(VexaRenderContext& context, const ChartPass& pass, PointPlace place,
                                  PointStyle& style) {
    if (!hasOverlay()) return;
    style.use(*this);
    const BarAnchors bar = pass.anchorsOf(*this, place);
    drawCaption(context, pass, bar, style);
    drawPointMarker(context, pass, bar.value);
}

void VexaDataPoint::drawCaption(VexaRenderContext& context, const ChartPass& pass, const BarAnchors& bar,
                                PointStyle& style) {
    if (caption_->isEmpty()) return;
    const RenderContextScope scope(context.getRenderContext());
    const CaptionedBar captioned{bar, pass.direction(), pass.depth(), pass.isBarChart(), pass.isCylinder()};
    const PointF corner =
        placeBarCaption(captioned, *captionPlacement_, context.measureText(*caption_), captionOffset_->pxSize());
    context.translate(Length(corner.x), Length(corner.y));
    context.setFill(style.caption());
    context.setStroke(nullptr);
    context.drawText(*caption_);
}

void VexaDataPoint::drawPointMarker(VexaRenderContext& context, const ChartPass& pass, PointF centre) {
    const float size = markerWidth_->pxSize();
    const bool isTriangle = *marker_ == MarkerType::Triangle;
    const float height = isTriangle ? size * std::sqrt(3.0F) / 2 : size;
    const float x = isBoxMoved(pass) ? centre.x - pass.depth() / 2 : centre.x;
    if (drawMarker(context, *marker_, {x - size / 2, centre.y - height / 2}, size)) return;
    const auto ordinal = std::to_string(static_cast<std::int32_t>(*marker_));
    raise(UnreacheableCodeException(String("unknown marker " + ordinal)), "VexaDataPoint", 315, getPlace());
}

}  // namespace VEXA
