#include "vexa/cartesian/VexaCategoryAxis.h"

namespace VEXA {

VexaCategoryAxis::VexaCategoryAxisTypeInfo::VexaCategoryAxisTypeInfo()
    : XmlTypeInfo("VexaCategoryAxis", "category-axis", chartNamespace(), &initTypeInfo) {}

void VexaCategoryAxis::VexaCategoryAxisTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAxisObjectTypeInfo::initTypeInfo(info);
}

XmlObjectTypeInfo* VexaCategoryAxis::getTypeInfoInstance() {
    static Immortal<VexaCategoryAxisTypeInfo> info;
    return &info.value;
}

}  // namespace VEXA
