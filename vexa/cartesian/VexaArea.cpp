#include "vexa/cartesian/VexaArea.h"

namespace VEXA {

VexaArea::VexaAreaTypeInfo::VexaAreaTypeInfo()
    : XmlTypeInfo("VexaArea", "area-chart", chartNamespace(), &initTypeInfo) {}

void VexaArea::VexaAreaTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaContainerObjectTypeInfo::initTypeInfo(info);
}

XmlObjectTypeInfo* VexaArea::getTypeInfoInstance() {
    static Immortal<VexaAreaTypeInfo> info;
    return &info.value;
}

}  // namespace VEXA
