#include "vexa/cartesian/VexaLine.h"

namespace VEXA {

VexaLine::VexaLineTypeInfo::VexaLineTypeInfo()
    : XmlTypeInfo("VexaLine", "line-chart", chartNamespace(), &initTypeInfo) {}

void VexaLine::VexaLineTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaContainerObjectTypeInfo::initTypeInfo(info);
}

XmlObjectTypeInfo* VexaLine::getTypeInfoInstance() {
    static Immortal<VexaLineTypeInfo> info;
    return &info.value;
}

}  // namespace VEXA
