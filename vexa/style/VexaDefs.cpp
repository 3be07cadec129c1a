#include "vexa/style/VexaDefs.h"

namespace VEXA {

VexaDefs::VexaDefsTypeInfo::VexaDefsTypeInfo() : XmlTypeInfo("VexaDefs", "defs", chartNamespace(), &initTypeInfo) {}

void VexaDefs::VexaDefsTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaObjectTypeInfo::initTypeInfo(info);
    addElementTypeInfo(info, "linear-gradient", chartNamespace(), &VexaDefs::definitions_);
    addElementTypeInfo(info, "radial-gradient", chartNamespace(), &VexaDefs::definitions_);
}

XmlObjectTypeInfo* VexaDefs::getTypeInfoInstance() {
    static Immortal<VexaDefsTypeInfo> info;
    return &info.value;
}

void VexaDefs::render(VexaRenderContext&) {}

XmlObjPtr<VexaObject> VexaDefs::findObject(const String& reference) {
    if (reference.isEmpty() || reference[0] != U'#') return nullptr;
    const String id = reference.subString(1);
    for (const XmlObjPtr<VexaObject>& definition : definitions_)
        if (XmlObjPtr<VexaObject> found = definition->findObject(id)) return found;
    return nullptr;
}

}  // namespace VEXA
