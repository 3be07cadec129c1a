#include "vexa/spider/VexaSpiderAxis.h"

#include "vexa/spider/VexaSpider.h"

namespace VEXA {

VexaSpiderAxis::VexaSpiderAxisTypeInfo::VexaSpiderAxisTypeInfo()
    : XmlTypeInfo("VexaSpiderAxis", "spider-axis", chartNamespace(), &initTypeInfo) {}

void VexaSpiderAxis::VexaSpiderAxisTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "min", space, &VexaSpiderAxis::min_, DefaultMinFloat, false);
    addAttributeTypeInfo(info, "max", space, &VexaSpiderAxis::max_, DefaultMaxFloat, false);
    addAttributeTypeInfo(info, "caption", space, &VexaSpiderAxis::caption_, DefaultStringAttribute, false);
}

XmlObjectTypeInfo* VexaSpiderAxis::getTypeInfoInstance() {
    static Immortal<VexaSpiderAxisTypeInfo> info;
    return &info.value;
}

PointF VexaSpiderAxis::getPoint(float axisCount, float radius, float index) const {
    return spiderAxisPoint(axisCount, radius, index);
}

void VexaSpiderAxis::render(VexaRenderContext& context) {
    VexaSpider& spider = VexaSpider::of(*this);
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const PointF tip = getPoint(spider.getAxisCount(), spider.getRadius(context), static_cast<float>(index_));
    context.drawLine(Length(), Length(), Length(tip.x), Length(tip.y));
    if (!caption_->trim().isEmpty()) drawCaption(context, tip);
}

void VexaSpiderAxis::drawCaption(VexaRenderContext& context, PointF tip) {
    const PointF origin = spiderCaptionOrigin(tip, context.measureText(*caption_), captionOffset_->pxSize());
    context.setStroke(nullptr);
    context.setFill(make<SolidColorBrush>(*captionColor_));
    context.drawText(*caption_, Length(origin.x), Length(origin.y));
}

}  // namespace VEXA
