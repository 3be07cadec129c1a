#pragma once

#include <cstddef>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/SmartPtr.h"
#include "vexa/support/core/String.h"
#include "vexa/support/core/Vector.h"

namespace VEXA {

class SaxParserContext;
class XmlObjectTypeInfo;

/// Base of every element of a document. Objects that a parser makes come from its document's pool; hold them in
/// SmartPtr (or XmlObjPtr) and never delete them.
class XmlObject : public Object {
public:
    XmlObject() noexcept;
    XmlObject(const XmlObject&) = delete;
    XmlObject& operator=(const XmlObject&) = delete;

    void OnFinalRelease() final;
    /// The record of the object's class.
    virtual XmlObjectTypeInfo* getTypeInfo() const;
    /// Character content between the tags; asked for only by a parser that collects it.
    virtual void addText(String text);
    /// Markup of an element that no class knows; asked for only by a parser that keeps it.
    virtual void addRawXmlText(String text);
    /// Called once by the parser, before the attributes are set. Remembers the parent.
    virtual void initialize(SmartPtr<XmlObject> parent, SaxParserContext& context);
    /// Called once by the parser, when the end tag has been read.
    virtual void finalize(SaxParserContext& context);
    /// An attribute that no class in the document's vocabulary knows here; the parser warns of it too.
    virtual void handleUnrecognizedAttribute(const String& name, const String& namespaceUri, const String& value);

    /// Exactly of that class; of that class or one derived from it.
    bool isA(int typeId) const;
    bool isKindOf(int typeId) const;

    /// The element that holds this one; null at the top and when the parent is gone.
    XmlObject* getParent() const noexcept { return parent_; }
    void setParent(XmlObject* parent) noexcept { parent_ = parent; }
    /// Where the element's tag begins; unknown for objects made without a parser.
    SourcePlace getPlace() const noexcept { return {line_, column_}; }
    void setPlace(SourcePlace place) noexcept {
        line_ = place.line;
        column_ = place.column;
    }

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID();

    static void* operator new(std::size_t size);
    static void operator delete(void* memory, std::size_t size) noexcept;

private:
    void destroy() noexcept;

    std::uint32_t line_ = 0;
    std::uint32_t column_ = 0;
    std::uint32_t pooledSize_;  // bytes taken from a pool, 0 when from elsewhere
    XmlObject* parent_ = nullptr;
};

/// Pointer to a single child, or to an object handed out.
template <class T>
using XmlObjPtr = SmartPtr<T>;

/// Children of one kind in document order.
template <class T>
class XmlObjectList {
public:
    void add(XmlObjPtr<T> child) { children_.push_back(std::move(child)); }
    /// Takes out the children that the function says, asking it once for each in their order; they have no parent then.
    /// Returns how many.
    template <class Predicate>
    std::size_t removeIf(Predicate shouldGo) {
        return std::erase_if(children_, [&](const XmlObjPtr<T>& child) {
            const bool goes = shouldGo(child);
            if (goes) child->setParent(nullptr);
            return goes;
        });
    }
    std::size_t size() const noexcept { return children_.size(); }
    bool isEmpty() const noexcept { return children_.empty(); }
    const XmlObjPtr<T>& operator[](std::size_t index) const noexcept { return children_[index]; }
    auto begin() const noexcept { return children_.begin(); }
    auto end() const noexcept { return children_.end(); }
    auto rbegin() const noexcept { return children_.rbegin(); }
    auto rend() const noexcept { return children_.rend(); }

private:
    Vector<XmlObjPtr<T>> children_;
};

}  // namespace VEXA
