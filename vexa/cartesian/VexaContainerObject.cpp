#include "vexa/cartesian/VexaContainerObject.h"

namespace VEXA {

VexaContainerObject::VexaContainerObjectTypeInfo::VexaContainerObjectTypeInfo()
    : XmlTypeInfo("VexaContainerObject", "", chartNamespace(), &initTypeInfo, 7) {}

void VexaContainerObject::VexaContainerObjectTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "grouping", space, &VexaContainerObject::grouping_, DefaultSerieGrouping, false);
    addElementTypeInfo(info, "serie", space, &VexaContainerObject::series_);
}

XmlObjectTypeInfo* VexaContainerObject::getTypeInfoInstance() {
    static Immortal<VexaContainerObjectTypeInfo> info;
    return &info.value;
}

VexaContainerObject::~VexaContainerObject() = default;

void VexaContainerObject::render(VexaRenderContext&) {}
void VexaContainerObject::renderOverlay(VexaRenderContext&) {}

}  // namespace VEXA
