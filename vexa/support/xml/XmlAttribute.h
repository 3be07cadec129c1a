#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>

namespace VEXA {

/// Head of a counted attribute value; the value follows in a derived struct. Defaults are immortal.
struct XmlValueBox {
    static constexpr std::uint32_t kImmortal = 0x80000000U;
    static constexpr std::uint32_t kPooled = 0x40000000U;  // memory from an ElementPool

    mutable std::atomic<std::uint32_t> references{1};

    void addReference() const noexcept { references.fetch_add(1, std::memory_order_relaxed); }
};

/// What the binding does with one type of value. One static instance for each type.
class XmlValueType {
public:
    /// A new box with one reference, or null when the text is no such value.
    virtual XmlValueBox* parse(std::string_view text) const = 0;
    /// Gives up one reference.
    virtual void release(XmlValueBox* box) const noexcept = 0;
    virtual std::string print(const XmlValueBox& box) const = 0;
    /// For messages: "a length (write a number with px, pt, pc, mm, cm or in)".
    virtual std::string_view expectation() const noexcept = 0;
    /// What a text that is no such value was most likely meant to be, "12.5px" for "12,5 px"; empty when nothing is
    /// near.
    virtual std::string suggest(std::string_view text) const = 0;
    /// The type's name, "Length".
    virtual std::string_view name() const noexcept = 0;

protected:
    ~XmlValueType() = default;
};

/// The untyped side of an attribute member: one pointer, with two flags in its low bits.
class XmlAttribute {
public:
    /// True when the document gave the attribute on this very element, also when it gave the default value.
    bool isGiven() const noexcept { return (bits_ & kGiven) != 0; }

    XmlValueBox* box() const noexcept { return reinterpret_cast<XmlValueBox*>(bits_ & ~kFlags); }

protected:
    explicit XmlAttribute(const XmlValueBox& shared) noexcept : bits_(reinterpret_cast<std::uintptr_t>(&shared)) {}
    ~XmlAttribute() = default;

    bool isCounted() const noexcept { return (bits_ & kCounted) != 0; }

private:
    friend class XmlAttributeTypeInfo;
    template <class T>
    friend class TXmlAttribute;

    static constexpr std::uintptr_t kGiven = 1;
    static constexpr std::uintptr_t kCounted = 2;  // this member holds one of the box's references
    static constexpr std::uintptr_t kFlags = 3;

    std::uintptr_t bits_;
};

}  // namespace VEXA
