#include "vexa/engine/VexaObject.h"

#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

constexpr int kNotFound = 34001;
constexpr int kNearlyFound = 34102;

int rootTypeId = 0;  // the type id of no class until the root has told its own
VexaObject::NearestReference nearestReference = nullptr;

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

void VexaObject::tellNotFound(const String& reference) {
    String near;
    XmlObject* const top = Log::takesWarning(kNotFound) ? getVexaRoot() : this;
    if (top->isKindOf(rootTypeId)) near = nearestReference(*top, reference);
    VariantArray arguments{quoteForMessage(reference)};
    if (!near.isEmpty()) arguments.emplace_back(quoteForMessage(near));
    Log::warning(near.isEmpty() ? kNotFound : kNearlyFound, arguments, getPlace());
}

void VexaObject::setRoot(int typeId, NearestReference nearest) noexcept {
    rootTypeId = typeId;
    nearestReference = nearest;
}

}  // namespace VEXA
