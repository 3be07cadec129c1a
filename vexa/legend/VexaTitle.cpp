#include "vexa/legend/VexaTitle.h"

#include "vexa/legend/VexaTextWrapper.h"
#include "vexa/support/core/Log.h"

namespace VEXA {

namespace {

constexpr int kCut = 34105;

}  // namespace

VexaTitle::VexaTitleTypeInfo::VexaTitleTypeInfo()
    : XmlTypeInfo("VexaTitle", "title", chartNamespace(), &initTypeInfo) {}

void VexaTitle::VexaTitleTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "x", space, &VexaTitle::x_, DefaultLength, false);
    addAttributeTypeInfo(info, "y", space, &VexaTitle::y_, DefaultLength, false);
    addAttributeTypeInfo(info, "width", space, &VexaTitle::width_, DefaultTitleWidth, false);
    addAttributeTypeInfo(info, "height", space, &VexaTitle::height_, DefaultTitleHeight, false);
    addAttributeTypeInfo(info, "value", space, &VexaTitle::value_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "value-color", space, &VexaTitle::valueColor_, DefaultFillColor, false);
}

XmlObjectTypeInfo* VexaTitle::getTypeInfoInstance() {
    static Immortal<VexaTitleTypeInfo> info;
    return &info.value;
}

LengthOrPercent VexaTitle::getWidth() { return *width_; }
LengthOrPercent VexaTitle::getHeight() { return *height_; }

void VexaTitle::render(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    context.translate(*x_, *y_);
    const float width = context.pxWidth(*width_);
    const float height = context.pxHeight(*height_);
    context.setClip(PathCommand::rectangle(-1, -1, width + 1, height + 1, 0, 0));
    context.drawRectangle(Length(), Length(), *width_, *height_, LengthOrPercent(), LengthOrPercent());
    drawValue(context, {width, height});
}

void VexaTitle::drawValue(VexaRenderContext& context, const SizeF& box) {
    context.setFill(make<SolidColorBrush>(*valueColor_));
    context.setStroke(nullptr);
    VexaTextWrapper wrapper(*value_, WrapMode::SplitWords, context, box.width, getPlace());
    const Vector<String>& lines = wrapper.wrap();
    const float gap = context.getTextDescent();
    float y = 0;
    std::int64_t cut = wrapper.isCut() ? 1 : 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        y += wrapper.getLineSizes()[i].height;
        context.drawText(lines[i], Length(), Length(y));
        if (y > box.height && !lines[i].trim().isEmpty()) ++cut;  // its letters reach out of the clip
        y += gap;
    }
    if (cut > 0) Log::warning(kCut, {cut}, getPlace());
}

}  // namespace VEXA
