#include "vexa/pie/VexaSlice.h"

#include <algorithm>
#include <cmath>

#include "vexa/legend/VexaTextWrapper.h"
#include "vexa/pie/SlicePath.h"
#include "vexa/pie/VexaPie.h"

namespace VEXA {

namespace {

/// The extent of lines with gaps between them.
SizeF extentOf(const Vector<SizeF>& lines, float gap) {
    SizeF extent;
    for (const SizeF& line : lines) {
        extent.width = std::max(extent.width, line.width);
        extent.height += line.height;
    }
    if (!lines.empty()) extent.height += gap * static_cast<float>(lines.size() - 1);
    return extent;
}

}  // namespace

VexaSlice::VexaSliceTypeInfo::VexaSliceTypeInfo()
    : XmlTypeInfo("VexaSlice", "slice", chartNamespace(), &initTypeInfo) {}

void VexaSlice::VexaSliceTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "value", space, &VexaSlice::value_, DefaultFloatAttribute, false);
    addAttributeTypeInfo(info, "caption", space, &VexaSlice::caption_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "caption-placement", space, &VexaSlice::captionPlacement_, DefaultCaptionPlacement,
                         true);
}

XmlObjectTypeInfo* VexaSlice::getTypeInfoInstance() {
    static Immortal<VexaSliceTypeInfo> info;
    return &info.value;
}

float VexaSlice::getAbsValue() const noexcept { return std::abs(*value_); }

void VexaSlice::render(VexaRenderContext& context) {
    const bool isSegment = VexaPie::of(*this).isDoughnut();
    if (!hasExtent()) return;
    const RenderContextScope scope(context.getRenderContext());
    setPaint(context, ColorAspect::Normal, 0.5F);
    context.drawPath(isSegment ? segmentPath(geometry_) : slicePath(geometry_));
}

/// What updateRenderContext sets, but for the font: there is no text in a body or a wall.
void VexaSlice::setPaint(VexaRenderContext& context, ColorAspect aspect, float amount) {
    if (SmartPtr<Brush> fill = getFillBrush(aspect, amount)) context.setFill(std::move(fill));
    if (SmartPtr<Stroke> stroke = getStrokeBrush(aspect, amount)) context.setStroke(std::move(stroke));
}

void VexaSlice::drawOuterWall(VexaRenderContext& context) {
    drawWall(context, outerWall(geometry_), geometry_.outerRadii());
}

void VexaSlice::drawInnerWall(VexaRenderContext& context) {
    drawWall(context, innerWall(geometry_), geometry_.innerRadii());
}

void VexaSlice::drawWall(VexaRenderContext& context, const std::optional<WallEnds>& ends, const SizeF& radii) {
    VexaPie& pie = VexaPie::of(*this);
    if (!ends || !hasExtent()) return;
    const RenderContextScope scope(context.getRenderContext());
    setPaint(context, ColorAspect::Darker, pie.getAspectShading());
    context.drawPath(wallPath(*ends, radii, pie.getChartDepth()));
}

const RectF& VexaSlice::layoutCaption(VexaRenderContext& context) {
    VexaPie& pie = VexaPie::of(*this);
    if (caption_->isEmpty() && pie.showsCaptions()) return layout_.box;
    const RenderContextScope scope(context.getRenderContext());
    context.setFont(getFont(context));
    const SizeF oneLine = context.measureText(*caption_);
    lineHeight_ = oneLine.height;
    CaptionRequest request;
    request.placement = *captionPlacement_;
    request.text = breakCaption(context, pie, oneLine);
    request.lineHeight = lineHeight_;
    request.offset = getCaptionOffset();
    request.depth = pie.isView3DMode() ? pie.getChartDepth() : 0;
    request.wantsConnector = pie.showsConnectors() && pie.showsCaptions() && !captionLines_.empty();
    layout_ = placeCaption(geometry_, request);
    return layout_.box;
}

/// Answers the extent of the lines.
SizeF VexaSlice::breakCaption(VexaRenderContext& context, const VexaPie& pie, const SizeF& oneLine) {
    const float width = pie.getCaptionSize();
    const bool fits = width > 0 && oneLine.width <= width;
    if (fits || !pie.wrapsCaptions() || !isOutside(*captionPlacement_)) {
        captionLines_.assign(1, *caption_);
        isCaptionCut_ = false;
        return oneLine;
    }
    VexaTextWrapper wrapper(*caption_, WrapMode::KeepWords, context, width, getPlace());
    captionLines_ = wrapper.wrap();
    isCaptionCut_ = wrapper.isCut();
    return extentOf(wrapper.getLineSizes(), context.getTextDescent());
}

void VexaSlice::drawCaption(VexaRenderContext& context) {
    if (caption_->isEmpty() || !isCaptionVisible_) return;
    const RenderContextScope scope(context.getRenderContext());
    context.setFont(getFont(context));
    context.setStroke(nullptr);
    context.setFill(make<SolidColorBrush>(*captionColor_));
    const float step = lineHeight_ + context.getTextDescent();
    float y = layout_.anchor.y;
    for (const String& line : captionLines_) {
        context.drawText(line, Length(layout_.anchor.x), Length(y));
        y += step;
    }
    if (layout_.hasConnector) drawConnector(context);
}

void VexaSlice::drawConnector(VexaRenderContext& context) {
    context.setStroke(VexaPie::of(*this).getConnectorStroke());
    context.setFill(nullptr);
    context.drawPolygon({layout_.connectorRim, layout_.connectorElbow, layout_.connectorEnd}, /*closed*/ false);
}

}  // namespace VEXA
