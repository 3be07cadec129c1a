#include "vexa/support/xml/XmlObject.h"

#include <new>
#include <utility>

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

// The objects that wait until the one being freed on this thread is gone, linked by their parents: a tree of any depth
// is freed without recursion.
thread_local bool isFreeing = false;
thread_local XmlObject* waiting = nullptr;

}  // namespace

XmlObject::XmlObject() noexcept : pooledSize_(static_cast<std::uint32_t>(ElementPool::sizeIfLast(this))) {}

// An object without children frees nothing that could free the next one in turn.
void XmlObject::OnFinalRelease() {
    const XmlObjectTypeInfo* const info = getTypeInfo();
    if (!info->hasChildren()) return destroy();
    info->orphanChildren(*this);
    if (isFreeing) {
        parent_ = std::exchange(waiting, this);
        return;
    }
    isFreeing = true;
    destroy();
    while (waiting != nullptr) {
        XmlObject* const next = waiting;
        waiting = std::exchange(next->parent_, nullptr);
        next->destroy();
    }
    isFreeing = false;
}

void XmlObject::destroy() noexcept {
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
