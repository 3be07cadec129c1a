#include "vexa/legend/VexaNote.h"

namespace VEXA {

VexaNote::VexaNoteTypeInfo::VexaNoteTypeInfo() : XmlTypeInfo("VexaNote", "note", chartNamespace(), &initTypeInfo) {}

void VexaNote::VexaNoteTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "x", space, &VexaNote::x_, DefaultLength, false);
    addAttributeTypeInfo(info, "y", space, &VexaNote::y_, DefaultLength, false);
    addAttributeTypeInfo(info, "value", space, &VexaNote::value_, DefaultStringAttribute, false);
}

XmlObjectTypeInfo* VexaNote::getTypeInfoInstance() {
    static Immortal<VexaNoteTypeInfo> info;
    return &info.value;
}

void VexaNote::render(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    context.setFill(make<SolidColorBrush>(captionColor_.getValue()));
    context.drawText(value_.getValue(), x_.getValue(), y_.getValue());
}

}  // namespace VEXA
