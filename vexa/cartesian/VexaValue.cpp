#include "vexa/cartesian/VexaValue.h"

namespace VEXA {

VexaValue::VexaValueTypeInfo::VexaValueTypeInfo()
    : XmlTypeInfo("VexaValue", "value", chartNamespace(), &initTypeInfo) {}

void VexaValue::VexaValueTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "value", space, &VexaValue::value_, DefaultValue, false);
    addAttributeTypeInfo(info, "display", space, &VexaValue::display_, DefaultStringAttribute, false);
}

XmlObjectTypeInfo* VexaValue::getTypeInfoInstance() {
    static Immortal<VexaValueTypeInfo> info;
    return &info.value;
}

void VexaValue::render(VexaRenderContext&) {}

}  // namespace VEXA
