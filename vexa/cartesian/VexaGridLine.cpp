#include "vexa/cartesian/VexaGridLine.h"

namespace VEXA {

VexaGridLine::VexaGridLineTypeInfo::VexaGridLineTypeInfo()
    : XmlTypeInfo("VexaGridLine", "grid-lines", chartNamespace(), &initTypeInfo) {}

void VexaGridLine::VexaGridLineTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    addAttributeTypeInfo(info, "type", chartNamespace(), &VexaGridLine::type_, DefaultGridlineType, false);
}

XmlObjectTypeInfo* VexaGridLine::getTypeInfoInstance() {
    static Immortal<VexaGridLineTypeInfo> info;
    return &info.value;
}

void VexaGridLine::render(VexaRenderContext&) {}

}  // namespace VEXA
