#pragma once

#include <concepts>
#include <utility>

#include "vexa/support/values/Suggestion.h"
#include "vexa/support/values/ValueTraits.h"
#include "vexa/support/xml/ElementPool.h"
#include "vexa/support/xml/XmlAttribute.h"

namespace VEXA {

/// A value with its count of references.
template <class T>
struct AttributeBox final : XmlValueBox {
    explicit AttributeBox(T v) : value(std::move(v)) {}
    constexpr AttributeBox(std::uint32_t count, T v) noexcept : XmlValueBox{count}, value(std::move(v)) {}

    static AttributeBox* make(T value) {
        bool pooled = false;
        void* const memory = ElementPool::allocateCurrent(sizeof(AttributeBox), pooled);
        auto* const box = new (memory) AttributeBox(std::move(value));
        if (pooled) box->references.store(1 | kPooled, std::memory_order_relaxed);
        return box;
    }
    void release() noexcept {
        const std::uint32_t before = references.fetch_sub(1, std::memory_order_acq_rel);
        if ((before & ~kPooled) != 1) return;
        this->~AttributeBox();
        if ((before & kPooled) != 0) {
            ElementPool::release(this, sizeof(AttributeBox));
        } else {
            ::operator delete(this);
        }
    }

    T value;
};

/// A default value, shared by all attributes that have it. Static, never destroyed, there before any constructor runs.
template <class T>
class DefaultAttribute {
public:
    using ValueType = T;

    explicit constexpr DefaultAttribute(T value) noexcept : storage_(XmlValueBox::kImmortal, std::move(value)) {}

    const T& getValue() const noexcept { return storage_.value.value; }
    const AttributeBox<T>& box() const noexcept { return storage_.value; }

private:
    Immortal<AttributeBox<T>> storage_;
};

/// How the binding handles values of type T.
template <class T>
class TXmlValueType final : public XmlValueType {
public:
    static const TXmlValueType& instance() noexcept {
        static constinit TXmlValueType type;
        return type;
    }
    XmlValueBox* parse(std::string_view text) const override {
        T value{};
        return ValueTraits<T>::parse(text, value) ? AttributeBox<T>::make(std::move(value)) : nullptr;
    }
    void release(XmlValueBox* box) const noexcept override { static_cast<AttributeBox<T>*>(box)->release(); }
    std::string print(const XmlValueBox& box) const override {
        return ValueTraits<T>::print(static_cast<const AttributeBox<T>&>(box).value);
    }
    std::string_view expectation() const noexcept override { return ValueTraits<T>::expectation(); }
    std::string suggest(std::string_view text) const override {
        return suggestValue(text, ValueTraits<T>::name(), [](std::string_view other) {
            T value{};
            return ValueTraits<T>::parse(other, value);
        });
    }
    std::string_view name() const noexcept override { return ValueTraits<T>::name(); }
};

/// An attribute member: the document's value, an ancestor's one that it inherits, or the default. One pointer wide; it
/// holds a value of its own only when one was given.
template <class T>
class TXmlAttribute final : public XmlAttribute {
public:
    using ValueType = T;

    /// REQUIRES: a static default.
    explicit TXmlAttribute(const DefaultAttribute<T>& defaultValue) noexcept : XmlAttribute(defaultValue.box()) {}
    TXmlAttribute(const TXmlAttribute& other) noexcept : XmlAttribute(other) {
        if (isCounted()) box()->addReference();
    }
    TXmlAttribute& operator=(const TXmlAttribute& other) noexcept {
        TXmlAttribute copy(other);
        std::swap(bits_, copy.bits_);
        return *this;
    }
    ~TXmlAttribute() {
        if (isCounted()) typedBox()->release();
    }

    static const XmlValueType& valueType() noexcept { return TXmlValueType<T>::instance(); }

    const T& getValue() const noexcept { return typedBox()->value; }
    const T* operator->() const noexcept { return &getValue(); }
    const T& operator*() const noexcept { return getValue(); }

    /// Gives the member a value of its own; defaults and inherited values of others stay as they are.
    void setValue(T value) {
        auto* const made = AttributeBox<T>::make(std::move(value));
        if (isCounted()) typedBox()->release();
        bits_ = reinterpret_cast<std::uintptr_t>(static_cast<XmlValueBox*>(made)) | kGiven | kCounted;
    }

    /// Whether the value differs from a default: what the chart classes mean by "given".
    friend bool operator==(const TXmlAttribute& attribute, const DefaultAttribute<T>& defaultValue) {
        return attribute.box() == &defaultValue.box() || equalValues(attribute.getValue(), defaultValue.getValue());
    }

private:
    AttributeBox<T>* typedBox() const noexcept { return static_cast<AttributeBox<T>*>(box()); }
};

}  // namespace VEXA
