#include "vexa/support/xml/XmlObjectTypeInfo.h"

#include <algorithm>

#include "vexa/support/xml/XmlObjectFactory.h"

namespace VEXA {

void XmlAttributeTypeInfo::setGiven(XmlObject& object, XmlValueBox* value) const noexcept {
    replace(object, reinterpret_cast<std::uintptr_t>(value) | XmlAttribute::kGiven | XmlAttribute::kCounted);
}

void XmlAttributeTypeInfo::setInherited(XmlObject& object, const XmlValueBox& value) const noexcept {
    value.addReference();
    replace(object, reinterpret_cast<std::uintptr_t>(&value) | XmlAttribute::kCounted);
}

XmlObjectTypeInfo* XmlElementTypeInfo::childClass() const {
    if (auto* const known = childClass_.load(std::memory_order_acquire)) return known;
    auto* const found = XmlObjectFactory::instance().findTypeInfo({namespace_->uri, name_});
    if (found == nullptr || !found->isKindOf(memberClass()->typeID())) {
        raise(UnreacheableCodeException(String("no class for the child element \"") + String(name_) + "\""),
              "XmlElementTypeInfo", __LINE__);
    }
    childClass_.store(found, std::memory_order_release);
    return found;
}

XmlObjectTypeInfo::~XmlObjectTypeInfo() = default;

void XmlObjectTypeInfo::initTypeInfo(XmlObjectTypeInfo*) {}

void XmlObjectTypeInfo::setName(std::string_view name, const XmlNamespace& space) noexcept {
    key_ = {space.uri, name};
    namespace_ = &space;
}

void XmlObjectTypeInfo::addAttribute(std::string_view name, const XmlNamespace& space, std::ptrdiff_t offset,
                                     const XmlValueType& type, const XmlValueBox& defaultValue, bool inherited) {
    const int id = inherited ? XmlObjectFactory::instance().inheritableId(name, space, type) : -1;
    attributes_.emplace_back(name, space, offset, type, defaultValue, id);
}

void XmlObjectTypeInfo::buildIndexes(const XmlObjectTypeInfo* parent) {
    if (parent != nullptr) ancestors_ = parent->ancestors_;
    ancestors_.push_back(typeId_);
    inheritedIndex_.assign(XmlObjectFactory::kMaxInheritableNames, 0);
    attributeIndex_.reserve(attributes_.size());
    for (std::size_t i = 0; i < attributes_.size(); ++i) {
        attributeIndex_.add(attributes_[i].getName(), static_cast<int>(i));
        if (!attributes_[i].isInherited()) continue;
        inheritedMask_ |= std::uint64_t{1} << attributes_[i].inheritableId();
        inheritedIndex_[static_cast<std::size_t>(attributes_[i].inheritableId())] = static_cast<std::uint8_t>(i);
    }
    elementIndex_.reserve(elements_.size());
    for (std::size_t i = 0; i < elements_.size(); ++i) {
        elementIndex_.add(elements_[i]->getName(), static_cast<int>(i));
    }
}

String XmlObjectTypeInfo::getElementName() const { return String(key_.name); }
const XmlKey& XmlObjectTypeInfo::getKey() const noexcept { return key_; }

const XmlNamespace& XmlObjectTypeInfo::getNamespace() const noexcept {
    static constexpr XmlNamespace none{};
    return namespace_ == nullptr ? none : *namespace_;
}

const XmlAttributeTypeInfo* XmlObjectTypeInfo::findAttribute(std::string_view name) const noexcept {
    const int position = attributeIndex_.find(name);
    return position < 0 ? nullptr : &attributes_[static_cast<std::size_t>(position)];
}

const XmlElementTypeInfo* XmlObjectTypeInfo::findElement(std::string_view name) const noexcept {
    const int position = elementIndex_.find(name);
    return position < 0 ? nullptr : elements_[static_cast<std::size_t>(position)].get();
}

void XmlObjectTypeInfo::setAttributeDefaults(XmlObject& object) const noexcept {
    // The list begins with the ancestors' attributes.
    for (const XmlAttributeTypeInfo& attribute : attributes_) attribute.setAttributeDefaultValue(object);
}

void XmlObjectTypeInfo::orphanChildren(XmlObject& object) const noexcept {
    for (const auto& element : elements_) element->orphan(object);
}

bool XmlObjectTypeInfo::isKindOf(int typeId) const noexcept {
    return std::find(ancestors_.begin(), ancestors_.end(), typeId) != ancestors_.end();
}

const XmlAttributeTypeInfo& XmlObjectTypeInfo::inheritedAttribute(int inheritableId) const noexcept {
    return attributes_[inheritedIndex_[static_cast<std::size_t>(inheritableId)]];
}

Vector<XmlObject*> XmlObjectTypeInfo::childrenOf(const XmlObject& object) const {
    Vector<XmlObject*> children;
    for (const auto& kind : elements_) {
        const std::size_t before = children.size();
        kind->collect(object, children);
        const auto isOther = [&](const XmlObject* c) { return c->getTypeInfo()->getKey().name != kind->getName(); };
        children.erase(std::remove_if(children.begin() + static_cast<std::ptrdiff_t>(before), children.end(), isOther),
                       children.end());
    }
    return children;
}

}  // namespace VEXA
