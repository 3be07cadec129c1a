#include "vexa/cartesian/VexaValueAxis.h"

namespace VEXA {

VexaValueAxis::VexaValueAxisTypeInfo::VexaValueAxisTypeInfo()
    : XmlTypeInfo("VexaValueAxis", "value-axis", chartNamespace(), &initTypeInfo) {}

void VexaValueAxis::VexaValueAxisTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAxisObjectTypeInfo::initTypeInfo(info);
}

XmlObjectTypeInfo* VexaValueAxis::getTypeInfoInstance() {
    static Immortal<VexaValueAxisTypeInfo> info;
    return &info.value;
}

}  // namespace VEXA
