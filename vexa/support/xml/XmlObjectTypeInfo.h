#pragma once

#include <bit>
#include <cstddef>
#include <memory>
#include <string_view>
#include <type_traits>

#include "vexa/support/core/Vector.h"
#include "vexa/support/xml/XmlAttribute.h"
#include "vexa/support/xml/XmlKey.h"
#include "vexa/support/xml/XmlNameTable.h"
#include "vexa/support/xml/XmlObject.h"

namespace VEXA {

/// One attribute of a class: where it lies, its type, its default and whether descendants inherit it.
class XmlAttributeTypeInfo {
public:
    XmlAttributeTypeInfo(std::string_view name, const XmlNamespace& space, std::ptrdiff_t offset,
                         const XmlValueType& type, const XmlValueBox& defaultValue, int inheritableId) noexcept
        : name_(name),
          namespace_(&space),
          offset_(offset),
          type_(&type),
          default_(&defaultValue),
          inheritableId_(inheritableId) {}

    std::string_view getName() const noexcept { return name_; }
    const XmlNamespace& getNamespace() const noexcept { return *namespace_; }
    const XmlValueType& getType() const noexcept { return *type_; }
    const XmlValueBox& getDefault() const noexcept { return *default_; }
    bool isInherited() const noexcept { return inheritableId_ >= 0; }
    /// Number of the name among the inheritable names; -1 when the attribute is not inherited.
    int inheritableId() const noexcept { return inheritableId_; }

    XmlAttribute& of(XmlObject& object) const noexcept {
        return *reinterpret_cast<XmlAttribute*>(reinterpret_cast<char*>(&object) + offset_);
    }
    const XmlAttribute& of(const XmlObject& object) const noexcept { return of(const_cast<XmlObject&>(object)); }

    /// Points the member at the default, giving up what it held.
    void setAttributeDefaultValue(XmlObject& object) const noexcept {
        replace(object, reinterpret_cast<std::uintptr_t>(default_));
    }
    /// Takes over the caller's reference; the attribute then counts as given.
    void setGiven(XmlObject& object, XmlValueBox* value) const noexcept;
    /// Shares an ancestor's value.
    void setInherited(XmlObject& object, const XmlValueBox& value) const noexcept;

private:
    void replace(XmlObject& object, std::uintptr_t bits) const noexcept {
        XmlAttribute& attribute = of(object);
        if (attribute.isCounted()) type_->release(attribute.box());
        attribute.bits_ = bits;
    }

    std::string_view name_;
    const XmlNamespace* namespace_;
    std::ptrdiff_t offset_;
    const XmlValueType* type_;
    const XmlValueBox* default_;
    int inheritableId_;
};

/// One kind of child of a class: its name and the member that receives it.
class XmlElementTypeInfo {
public:
    XmlElementTypeInfo(std::string_view name, const XmlNamespace& space) noexcept : name_(name), namespace_(&space) {}
    virtual ~XmlElementTypeInfo() = default;

    std::string_view getName() const noexcept { return name_; }
    const XmlNamespace& getNamespace() const noexcept { return *namespace_; }
    virtual bool isList() const noexcept = 0;
    /// The class that the member takes.
    virtual XmlObjectTypeInfo* memberClass() const = 0;
    /// The class of the child's element. Throws UnreacheableCodeException when none of the member's kind is registered.
    XmlObjectTypeInfo* childClass() const;
    /// Hands the child to the parent's member; false when a member for one child is taken.
    virtual bool attach(XmlObject& parent, XmlObjPtr<XmlObject> child) const = 0;
    virtual bool isFull(const XmlObject& parent) const noexcept = 0;
    /// The children no longer have a parent.
    virtual void orphan(XmlObject& parent) const noexcept = 0;
    /// Appends the children that the member holds, those of other names included that share it.
    virtual void collect(const XmlObject& parent, Vector<XmlObject*>& children) const = 0;

private:
    std::string_view name_;
    const XmlNamespace* namespace_;
    mutable std::atomic<XmlObjectTypeInfo*> childClass_{nullptr};  // found on first use
};

/// The record of one class: what its element is called, what it may carry, how to make an object. One static instance
/// for each class, filled once and only read afterwards.
class XmlObjectTypeInfo {
public:
    explicit XmlObjectTypeInfo(int typeId) noexcept : typeId_(typeId) {}
    XmlObjectTypeInfo(const XmlObjectTypeInfo&) = delete;
    XmlObjectTypeInfo& operator=(const XmlObjectTypeInfo&) = delete;

    /// Empty for an abstract class.
    virtual String getElementName() const;
    virtual const XmlKey& getKey() const noexcept;
    virtual const XmlNamespace& getNamespace() const noexcept;
    /// The attribute of that name, the ancestors' included; null when there is none.
    virtual const XmlAttributeTypeInfo* findAttribute(std::string_view name) const noexcept;
    /// The child of that name; null when there is none.
    virtual const XmlElementTypeInfo* findElement(std::string_view name) const noexcept;
    /// Sets every attribute to its default: first the ancestors' ones, then the own in the order of registration.
    virtual void setAttributeDefaults(XmlObject& object) const noexcept;
    /// A new object with its defaults. Throws Exception 2029 for an abstract class.
    virtual XmlObjPtr<XmlObject> createObject() const = 0;
    /// The name of the C++ class.
    virtual std::string_view getClassName() const noexcept = 0;
    virtual bool isAbstract() const noexcept = 0;
    /// The children no longer have a parent: called when the object goes.
    virtual void orphanChildren(XmlObject& object) const noexcept;
    virtual bool hasChildren() const noexcept { return !elements_.empty(); }
    /// The record of the class it derives from; null for XmlObject.
    virtual XmlObjectTypeInfo* getParentTypeInfo() const = 0;

    virtual ~XmlObjectTypeInfo();

    /// The children of an object of this class, kind by kind, those of one kind in document order.
    Vector<XmlObject*> childrenOf(const XmlObject& object) const;

    int typeID() const noexcept { return typeId_; }
    bool isKindOf(int typeId) const noexcept;
    const Vector<XmlAttributeTypeInfo>& attributes() const noexcept { return attributes_; }
    const Vector<std::unique_ptr<XmlElementTypeInfo>>& elements() const noexcept { return elements_; }
    /// Bits of the inheritable names that the class registers as inherited.
    std::uint64_t inheritedMask() const noexcept { return inheritedMask_; }
    const XmlAttributeTypeInfo& inheritedAttribute(int inheritableId) const noexcept;

protected:
    /// The end of the chain of initTypeInfo: XmlObject itself has neither attributes nor children.
    static void initTypeInfo(XmlObjectTypeInfo* info);

    void setName(std::string_view name, const XmlNamespace& space) noexcept;
    void buildIndexes(const XmlObjectTypeInfo* parent);

    /// Registers an attribute: `field` is the member `TXmlAttribute<T> C::*`, `defaultAttribute` a DefaultAttribute<T>.
    template <class Field, class C, class D>
    static void addAttributeTypeInfo(XmlObjectTypeInfo* info, std::string_view name, const XmlNamespace& space,
                                     Field C::*field, const D& defaultAttribute, bool inherited) {
        static_assert(std::is_same_v<typename Field::ValueType, typename D::ValueType>);
        info->addAttribute(name, space, offsetOf(field), Field::valueType(), defaultAttribute.box(), inherited);
    }

    /// Registers a child: `field` is the member `XmlObjPtr<T> C::*` or `XmlObjectList<T> C::*`.
    template <class T, class C>
    static void addElementTypeInfo(XmlObjectTypeInfo* info, std::string_view name, const XmlNamespace& space,
                                   XmlObjPtr<T> C::*field);
    template <class T, class C>
    static void addElementTypeInfo(XmlObjectTypeInfo* info, std::string_view name, const XmlNamespace& space,
                                   XmlObjectList<T> C::*field);

private:
    // With single inheritance a pointer to a data member is the member's distance from the start of the object (Itanium
    // C++ ABI 2.3), for derived objects too.
    template <class Field, class C>
    static std::ptrdiff_t offsetOf(Field C::*field) noexcept {
        static_assert(sizeof(field) == sizeof(std::ptrdiff_t));
        return std::bit_cast<std::ptrdiff_t>(field);
    }
    void addAttribute(std::string_view name, const XmlNamespace& space, std::ptrdiff_t offset, const XmlValueType& type,
                      const XmlValueBox& defaultValue, bool inherited);

    int typeId_;
    XmlKey key_;
    const XmlNamespace* namespace_ = nullptr;
    Vector<XmlAttributeTypeInfo> attributes_;
    Vector<std::unique_ptr<XmlElementTypeInfo>> elements_;
    XmlNameTable attributeIndex_;
    XmlNameTable elementIndex_;
    Vector<int> ancestors_;  // type ids, the own one included
    std::uint64_t inheritedMask_ = 0;
    Vector<std::uint8_t> inheritedIndex_;  // inheritable id -> position in attributes_
};

template <class T, class C>
class XmlSingleChildTypeInfo final : public XmlElementTypeInfo {
public:
    XmlSingleChildTypeInfo(std::string_view name, const XmlNamespace& space, XmlObjPtr<T> C::*field) noexcept
        : XmlElementTypeInfo(name, space), field_(field) {}

    bool isList() const noexcept override { return false; }
    XmlObjectTypeInfo* memberClass() const override { return T::getTypeInfoInstance(); }
    bool attach(XmlObject& parent, XmlObjPtr<XmlObject> child) const override {
        if (isFull(parent)) return false;
        static_cast<C&>(parent).*field_ = XmlObjPtr<T>(static_cast<T*>(child.get()));
        return true;
    }
    bool isFull(const XmlObject& parent) const noexcept override {
        return !(static_cast<const C&>(parent).*field_).isEmpty();
    }
    void orphan(XmlObject& parent) const noexcept override {
        if (auto& child = static_cast<C&>(parent).*field_; child) child->setParent(nullptr);
    }
    void collect(const XmlObject& parent, Vector<XmlObject*>& children) const override {
        if (const auto& child = static_cast<const C&>(parent).*field_; child) children.push_back(child.get());
    }

private:
    XmlObjPtr<T> C::*field_;
};

template <class T, class C>
class XmlChildListTypeInfo final : public XmlElementTypeInfo {
public:
    XmlChildListTypeInfo(std::string_view name, const XmlNamespace& space, XmlObjectList<T> C::*field) noexcept
        : XmlElementTypeInfo(name, space), field_(field) {}

    bool isList() const noexcept override { return true; }
    XmlObjectTypeInfo* memberClass() const override { return T::getTypeInfoInstance(); }
    bool attach(XmlObject& parent, XmlObjPtr<XmlObject> child) const override {
        (static_cast<C&>(parent).*field_).add(XmlObjPtr<T>(static_cast<T*>(child.get())));
        return true;
    }
    bool isFull(const XmlObject&) const noexcept override { return false; }
    void orphan(XmlObject& parent) const noexcept override {
        for (const auto& child : static_cast<C&>(parent).*field_) child->setParent(nullptr);
    }
    void collect(const XmlObject& parent, Vector<XmlObject*>& children) const override {
        for (const auto& child : static_cast<const C&>(parent).*field_) children.push_back(child.get());
    }

private:
    XmlObjectList<T> C::*field_;
};

template <class T, class C>
void XmlObjectTypeInfo::addElementTypeInfo(XmlObjectTypeInfo* info, std::string_view name, const XmlNamespace& space,
                                           XmlObjPtr<T> C::*field) {
    info->elements_.push_back(std::make_unique<XmlSingleChildTypeInfo<T, C>>(name, space, field));
}

template <class T, class C>
void XmlObjectTypeInfo::addElementTypeInfo(XmlObjectTypeInfo* info, std::string_view name, const XmlNamespace& space,
                                           XmlObjectList<T> C::*field) {
    info->elements_.push_back(std::make_unique<XmlChildListTypeInfo<T, C>>(name, space, field));
}

}  // namespace VEXA
