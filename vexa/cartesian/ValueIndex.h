#pragma once

#include <cstdint>

#include "vexa/support/core/Vector.h"
#include "vexa/support/values/Value.h"

namespace VEXA {

/// Distinct values in the order of their first appearance, found again by hashing in constant time.
class ValueIndex {
public:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// The position of the value among the distinct ones, from 0; one that is new goes to the end.
    std::size_t add(const Value& value);
    /// kNone when no equal value was added.
    std::size_t find(const Value& value) const noexcept;
    const Vector<Value>& values() const noexcept { return values_; }
    std::size_t size() const noexcept { return values_.size(); }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t entry = 0;  // position + 1; 0 when free
    };
    /// Where the value is, or the free slot where it belongs. REQUIRES: slots.
    std::size_t slotOf(const Value& value, std::uint32_t hash) const noexcept;
    std::size_t freeSlot(std::uint32_t hash) const noexcept;
    void grow();

    Vector<Value> values_;
    Vector<Slot> slots_;  // none, or a power of two, at most half of them taken
};

/// The value as an axis of texts knows it: its own text. No value stays none.
Value asText(const Value& value);

}  // namespace VEXA
