#include "vexa/engine/VexaObject.h"

namespace VEXA {

namespace {

int rootTypeId = 0;  // the type id of no class until the root has told its own

}  // namespace

VexaObject::VexaObjectTypeInfo::VexaObjectTypeInfo()
    : XmlTypeInfo("VexaObject", "", chartNamespace(), &initTypeInfo, 7) {}

void VexaObject::VexaObjectTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    XmlObjectTypeInfo::initTypeInfo(info);
    addAttributeTypeInfo(info, "id", chartNamespace(), &VexaObject::id_, DefaultStringAttribute, /*inherited*/ false);
}

XmlObjectTypeInfo* VexaObject::getTypeInfoInstance() {
    static Immortal<VexaObjectTypeInfo> info;
    return &info.value;
}

XmlObjPtr<VexaObject> VexaObject::findObject(const String& id) {
    return id.compare(*id_) == 0 ? XmlObjPtr<VexaObject>(this) : nullptr;
}

XmlObject* VexaObject::getVexaRoot() {
    XmlObject* object = this;
    while (!object->isKindOf(rootTypeId) && object->getParent() != nullptr) object = object->getParent();
    return object;
}

XmlObjPtr<VexaObject> VexaObject::findReferencedObject(const String& reference) {
    XmlObject* const top = getVexaRoot();
    return top->isKindOf(typeID()) ? static_cast<VexaObject*>(top)->findObject(reference) : nullptr;
}

void VexaObject::setRootTypeId(int typeId) noexcept { rootTypeId = typeId; }

}  // namespace VEXA
