#include "vexa/style/VexaGradientStop.h"

namespace VEXA {

VexaGradientStop::VexaGradientStopTypeInfo::VexaGradientStopTypeInfo()
    : XmlTypeInfo("VexaGradientStop", "stop", chartNamespace(), &initTypeInfo) {}

void VexaGradientStop::VexaGradientStopTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "stop-color", space, &VexaGradientStop::stopColor_, DefaultGradientStopColor, false);
    addAttributeTypeInfo(info, "stop-opacity", space, &VexaGradientStop::stopOpacity_, DefaultFloatOrPercent, false);
    addAttributeTypeInfo(info, "offset", space, &VexaGradientStop::offset_, DefaultFloatOrPercent, false);
}

XmlObjectTypeInfo* VexaGradientStop::getTypeInfoInstance() {
    static Immortal<VexaGradientStopTypeInfo> info;
    return &info.value;
}

void VexaGradientStop::render(VexaRenderContext&) {}

}  // namespace VEXA
