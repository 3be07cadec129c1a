#include "vexa/legend/VexaLegendItem.h"

#include <algorithm>
#include <string>

#include "vexa/style/Marker.h"

namespace VEXA {

VexaLegendItem::VexaLegendItemTypeInfo::VexaLegendItemTypeInfo()
    : XmlTypeInfo("VexaLegendItem", "legend-item", chartNamespace(), &initTypeInfo) {}

void VexaLegendItem::VexaLegendItemTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "label", space, &VexaLegendItem::label_, DefaultMarkerType, false);
    addAttributeTypeInfo(info, "label-width", space, &VexaLegendItem::labelWidth_, DefaultMarkerWidth, false);
    addAttributeTypeInfo(info, "label-spacing", space, &VexaLegendItem::labelSpacing_, DefaultMarkerSpacing, false);
    addAttributeTypeInfo(info, "caption", space, &VexaLegendItem::caption_, DefaultStringAttribute, false);
}

XmlObjectTypeInfo* VexaLegendItem::getTypeInfoInstance() {
    static Immortal<VexaLegendItemTypeInfo> info;
    return &info.value;
}

void VexaLegendItem::setThemeLineStroke(SmartPtr<Stroke> stroke) { themeLineStroke_ = std::move(stroke); }

void VexaLegendItem::setItemRect(const RectF& rect) noexcept {
    itemRect_ = rect;
    position_ = {rect.x, rect.y};
}

void VexaLegendItem::setMaxWidth(float width) noexcept {
    maxWidth_ = width;
    wrapped_.reset();
}

SizeF VexaLegendItem::getItemSize(VexaRenderContext& context) {
    const SmartPtr<Font> font = getFont(context);
    font->setFontStyle(DrawingFontStyle::Normal);
    font->setFontWeight(DrawingFontWeight::Normal);
    const SizeF text = context.measureText(*caption_, font);
    const float label = labelWidth_->pxSize();
    return {label + labelSpacing_->pxSize() + text.width, std::max(label, text.height)};
}

RectF VexaLegendItem::layout(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    context.setFont(getFont(context));
    wrapCaption(context);
    const float label = labelWidth_->pxSize();
    const float width = wrapped_->lines.empty() ? 0.0F : wrapped_->size.width + label + labelSpacing_->pxSize();
    itemRect_ = {position_.x, position_.y, width, std::max(wrapped_->size.height, label)};
    return itemRect_;
}

void VexaLegendItem::wrapCaption(VexaRenderContext& context) {
    const float room = maxWidth_ - labelWidth_->pxSize() - labelSpacing_->pxSize();
    wrapped_ = wrapLegendCaption(*caption_, context, room, getPlace());
}

bool VexaLegendItem::isCaptionCut() const { return wrapped_.has_value() && wrapped_->isCut; }

void VexaLegendItem::render(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    drawLabel(context);
    drawCaption(context);
}

void VexaLegendItem::drawLabel(VexaRenderContext& context) {
    const bool hasStroke = !stroke_->isNull() && stroke_->getSColor().getType() != SColorType::None;
    if (*label_ == MarkerType::Dash && !hasStroke) context.setStroke(themeLineStroke_);
    const float size = labelWidth_->pxSize();
    const float lineHeight = context.measureText(String()).height;
    const float drop = size < lineHeight ? (lineHeight - size) / 2 : 0.0F;
    if (drawMarker(context, *label_, {position_.x, position_.y + drop}, size)) return;
    const std::string what = "label " + std::to_string(static_cast<std::int32_t>(*label_)) + " is unknown";
    raise(UnreacheableCodeException(String(what)), "VexaLegendItem", 72, getPlace());
}

// The lines are those of the layout, also where no marker takes its part of the width.
void VexaLegendItem::drawCaption(VexaRenderContext& context) {
    context.setFill(make<SolidColorBrush>(*captionColor_));
    context.setStroke(nullptr);
    if (!wrapped_.has_value()) wrapCaption(context);
    const float label = *label_ == MarkerType::None ? 0.0F : labelWidth_->pxSize();
    const Length left(position_.x + label + labelSpacing_->pxSize());
    for (const LegendCaption::Line& line : wrapped_->lines) {
        context.drawText(line.text, left, Length(position_.y + line.baseline));
    }
    wrapped_.reset();
}

}  // namespace VEXA
