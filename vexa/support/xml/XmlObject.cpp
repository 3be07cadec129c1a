#include "vexa/support/xml/XmlObject.h"

#include <new>

#include "vexa/support/xml/ElementPool.h"
#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA {
namespace {

/// The record at the root of the class tree: no element, no attributes, no children.
class XmlObjectRecord final : public XmlObjectTypeInfo {
public:
    XmlObjectRecord() : XmlObjectTypeInfo(XmlObjectFactory::instance().getNewTypeId()) {
        initTypeInfo(this);
        buildIndexes(nullptr);
    }
    XmlObjPtr<XmlObject> createObject() const override {
        raise(Exception(2029, {String("XmlObject")}), "XmlObject", __LINE__);
    }
    std::string_view getClassName() const noexcept override { return "XmlObject"; }
    bool isAbstract() const noexcept override { return true; }
    XmlObjectTypeInfo* getParentTypeInfo() const override { return nullptr; }
};

}  // namespace

XmlObject::XmlObject() noexcept : pooledSize_(static_cast<std::uint32_t>(ElementPool::sizeIfLast(this))) {}

void XmlObject::OnFinalRelease() {
    if (const XmlObjectTypeInfo* const info = getTypeInfo(); info->hasChildren()) info->orphanChildren(*this);
    const std::size_t pooledSize = pooledSize_;
    this->~XmlObject();
    if (pooledSize != 0) {
        ElementPool::release(this, pooledSize);
    } else {
        ::operator delete(this);
    }
}

void* XmlObject::operator new(std::size_t size) {
    bool pooled = false;
    return ElementPool::allocateCurrent(size, pooled);
}

void XmlObject::operator delete(void* memory, std::size_t size) noexcept {
    if (ElementPool::sizeIfLast(memory) != 0) {
        ElementPool::release(memory, size);
    } else {
        ::operator delete(memory);
    }
}

XmlObjectTypeInfo* XmlObject::getTypeInfoInstance() {
    static XmlObjectTypeInfo* const record = new XmlObjectRecord;
    return record;
}

XmlObjectTypeInfo* XmlObject::getTypeInfo() const { return getTypeInfoInstance(); }
int XmlObject::typeID() { return getTypeInfoInstance()->typeID(); }

void XmlObject::addText(String) {}
void XmlObject::addRawXmlText(String) {}
void XmlObject::initialize(SmartPtr<XmlObject> parent, SaxParserContext&) { parent_ = parent.get(); }
void XmlObject::finalize(SaxParserContext&) {}
void XmlObject::handleUnrecognizedAttribute(const String&, const String&, const String&) {}

bool XmlObject::isA(int typeId) const { return getTypeInfo()->typeID() == typeId; }
bool XmlObject::isKindOf(int typeId) const { return getTypeInfo()->isKindOf(typeId); }

}  // namespace VEXA
