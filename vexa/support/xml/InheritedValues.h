#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "vexa/support/xml/XmlObjectFactory.h"
#include "vexa/support/xml/XmlObjectTypeInfo.h"

namespace VEXA {

/// The inheritable attribute values in force at the place where a parser reads: for each name the value on the nearest
/// open element that carries it. Setting a value remembers the one it hides until the element is left.
class InheritedValues {
public:
    InheritedValues() = default;
    ~InheritedValues() { leave(0); }
    InheritedValues(const InheritedValues&) = delete;
    InheritedValues& operator=(const InheritedValues&) = delete;

    /// Where the values of an element begin; hand it to `leave` at the element's end.
    std::size_t mark() const noexcept { return hidden_.size(); }

    /// Holds a reference to the value of its own.
    void carry(int id, const XmlValueType& type, XmlValueBox& value) {
        Entry& entry = inForce_[static_cast<std::size_t>(id)];
        hidden_.push_back({id, entry});
        value.addReference();
        entry = {&type, &value};
        mask_ |= std::uint64_t{1} << id;
    }

    void leave(std::size_t mark) noexcept {
        while (hidden_.size() > mark) {
            const auto [id, before] = hidden_.back();
            hidden_.pop_back();
            Entry& entry = inForce_[static_cast<std::size_t>(id)];
            entry.type->release(entry.value);
            entry = before;
            if (before.value == nullptr) mask_ &= ~(std::uint64_t{1} << id);
        }
    }

    /// Gives the object the values in force for those inherited attributes that it was not given.
    void hand(XmlObject& object, const XmlObjectTypeInfo& info) const noexcept {
        for (std::uint64_t open = mask_ & info.inheritedMask(); open != 0; open &= open - 1) {
            const int id = std::countr_zero(open);
            const XmlAttributeTypeInfo& attribute = info.inheritedAttribute(id);
            if (attribute.of(object).isGiven()) continue;
            attribute.setInherited(object, *inForce_[static_cast<std::size_t>(id)].value);
        }
    }

private:
    struct Entry {
        const XmlValueType* type = nullptr;
        XmlValueBox* value = nullptr;
    };
    struct Hidden {
        int id;
        Entry before;
    };

    std::uint64_t mask_ = 0;
    std::array<Entry, XmlObjectFactory::kMaxInheritableNames> inForce_{};
    Vector<Hidden> hidden_;
};

}  // namespace VEXA
