#include "vexa/cartesian/VexaSerie.h"

namespace VEXA {

VexaSerie::VexaSerieTypeInfo::VexaSerieTypeInfo()
    : XmlTypeInfo("VexaSerie", "serie", chartNamespace(), &initTypeInfo) {}

void VexaSerie::VexaSerieTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    addElementTypeInfo(info, "data-point", chartNamespace(), &VexaSerie::dataPoints_);
}

XmlObjectTypeInfo* VexaSerie::getTypeInfoInstance() {
    static Immortal<VexaSerieTypeInfo> info;
    return &info.value;
}

void VexaSerie::render(VexaRenderContext&) {}

}  // namespace VEXA
