#include <algorithm>
#include <cmath>
#include <span>
#include <string>

#include "vexa/cartesian/ChartPass.h"
#include "vexa/cartesian/PointStyle.h"
#include "vexa/cartesian/VexaContainerObject.h"
#include "vexa/cartesian/VexaPlotArea.h"

// How a series is painted, and its data points found.

namespace VEXA {

namespace {

/// The number of a child in its list; the list's size when it is not in it.
template <class T>
std::size_t indexOf(const XmlObjectList<T>& list, const T* child) {
    const auto found = std::find_if(list.begin(), list.end(), [child](const auto& one) { return one.get() == child; });
    return static_cast<std::size_t>(found - list.begin());
}

void drawRibbons(VexaRenderContext& context, std::span<const PointF> line, float depth) {
    for (std::size_t i = 1; i < line.size(); ++i) drawFace(context, ribbon(line[i - 1], line[i], depth));
}

}  // namespace

VexaPlotArea& VexaSerie::getPlotArea() const { return VexaPlotArea::of(*this); }

VexaDataPoint* VexaSerie::findDataPoint(VexaRenderContext& context, const Value& target, bool byCategory) {
    const PlotMapping mapping(getPlotArea(), context);
    const auto positionOf = [&](const Value& value) {
        return static_cast<double>(byCategory ? mapping.categoryPosition(value) : mapping.valuePosition(value));
    };
    const double wanted = positionOf(target);
    for (const auto& point : dataPoints_) {
        const double position = positionOf(byCategory ? point->getCategory() : point->getValue());
        if (std::abs(position - wanted) <= kSameCategory) return point.get();
    }
    return nullptr;
}

void VexaSerie::render(VexaRenderContext& context) {
    if (dataPoints_.isEmpty()) return;  // nothing to paint needs no axes
    VexaContainerObject& chart = VexaContainerObject::of(*this);
    render(context, ChartPass(chart, context), indexOf(chart.getSeries(), this));
}

void VexaSerie::renderOverlay(VexaRenderContext& context) {
    VexaContainerObject& chart = VexaContainerObject::of(*this);
    renderOverlay(context, ChartPass(chart, context), indexOf(chart.getSeries(), this));
}

void VexaSerie::render(VexaRenderContext& context, const ChartPass& pass, std::size_t index) {
    if (dataPoints_.isEmpty()) return;
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const ContainerKind kind = VexaContainerObject::of(*this).getContainerKind();
    switch (kind) {
        case ContainerKind::Line:
            return drawLine(context, pass);
        case ContainerKind::Bar:
            return drawBars(context, pass, index);
        case ContainerKind::Area:
            return drawArea(context, pass);
        case ContainerKind::None:
            return;
    }
    raise(UnreacheableCodeException(String("unknown kind of chart " + std::to_string(static_cast<int>(kind)))),
          "VexaSerie", 40, getPlace());
}

void VexaSerie::renderOverlay(VexaRenderContext& context, const ChartPass& pass, std::size_t index) {
    if (!pass.areCaptionsShown()) return;
    PointStyle style(context);
    for (std::size_t i = 0; i < dataPoints_.size(); ++i)
        dataPoints_[i]->renderOverlay(context, pass, {index, i}, style);
}

void VexaSerie::drawBars(VexaRenderContext& context, const ChartPass& pass, std::size_t index) {
    PointStyle style(context);
    for (std::size_t i = 0; i < dataPoints_.size(); ++i) dataPoints_[i]->render(context, pass, {index, i}, style);
}

void VexaSerie::drawLine(VexaRenderContext& context, const ChartPass& pass) {
    const Vector<PointF> line = getValuePoints(pass);
    if (pass.is3D()) {
        context.setFill(getFillBrush(ColorAspect::Darker, pass.shading()));
        drawRibbons(context, line, pass.depth());
    } else if (getUserStrokeBrush(ColorAspect::Normal, 0.5F).isEmpty()) {
        context.setStroke(themeLineStroke_);
    }
    context.setFill(nullptr);
    context.drawPolygon(line, /*closed*/ false);
}

void VexaSerie::drawArea(VexaRenderContext& context, const ChartPass& pass) {
    const Vector<PointF> outline = getAreaOutline(pass);
    if (outline.empty()) return;
    if (pass.is3D()) drawAreaSides(context, outline, pass);
    context.setFill(getFillBrush(ColorAspect::Normal, 0.5F));
    context.drawPolygon(outline, /*closed*/ true);
}

/// Left end, right end, floor, and last what lies along the values.
void VexaSerie::drawAreaSides(VexaRenderContext& context, const Vector<PointF>& outline, const ChartPass& pass) {
    const std::span<const PointF> line(outline.data() + 1, outline.size() - 2);
    context.setFill(getFillBrush(ColorAspect::Darker, pass.shading()));
    drawFace(context, ribbon(outline.front(), line.front(), pass.depth()));
    drawFace(context, ribbon(outline.back(), line.back(), pass.depth()));
    drawFace(context, ribbon(outline.front(), outline.back(), pass.depth()));
    drawRibbons(context, line, pass.depth());
}

Vector<PointF> VexaSerie::getValuePoints(const ChartPass& pass) const {
    Vector<PointF> points;
    points.reserve(dataPoints_.size());
    for (const auto& point : dataPoints_) {
        if (point->getValue().isNone()) continue;
        points.push_back(pass.mapping().anchors(point->getCategory(), point->getValue()).value);
    }
    return points;
}

/// The values between the first and the last base; empty without a value.
Vector<PointF> VexaSerie::getAreaOutline(const ChartPass& pass) const {
    Vector<PointF> outline;
    outline.reserve(dataPoints_.size() + 2);
    PointF lastBase;
    for (const auto& point : dataPoints_) {
        if (point->getValue().isNone()) continue;
        const BarAnchors anchors = pass.mapping().anchors(point->getCategory(), point->getValue());
        if (outline.empty()) outline.push_back(anchors.base);
        outline.push_back(anchors.value);
        lastBase = anchors.base;
    }
    if (!outline.empty()) outline.push_back(lastBase);
    return outline;
}

}  // namespace VEXA
