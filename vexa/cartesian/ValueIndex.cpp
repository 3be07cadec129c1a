#include "vexa/cartesian/ValueIndex.h"

namespace VEXA {

namespace {

constexpr std::size_t kFirstSlots = 16;

std::uint32_t shortHash(const Value& value) noexcept { return static_cast<std::uint32_t>(value.hash()); }

}  // namespace

std::size_t ValueIndex::add(const Value& value) {
    if (slots_.size() < 2 * (values_.size() + 1)) grow();
    const std::uint32_t hash = shortHash(value);
    Slot& slot = slots_[slotOf(value, hash)];
    if (slot.entry == 0) {
        values_.push_back(value);
        slot = {hash, static_cast<std::uint32_t>(values_.size())};
    }
    return slot.entry - 1;
}

std::size_t ValueIndex::find(const Value& value) const noexcept {
    if (slots_.empty()) return kNone;
    const Slot& slot = slots_[slotOf(value, shortHash(value))];
    return slot.entry == 0 ? kNone : slot.entry - 1;
}

std::size_t ValueIndex::slotOf(const Value& value, std::uint32_t hash) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot& slot = slots_[at];
        if (slot.entry == 0 || (slot.hash == hash && values_[slot.entry - 1] == value)) return at;
    }
}

std::size_t ValueIndex::freeSlot(std::uint32_t hash) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at].entry != 0) at = (at + 1) & mask;
    return at;
}

void ValueIndex::grow() {
    Vector<Slot> old(slots_.empty() ? kFirstSlots : 2 * slots_.size());
    old.swap(slots_);
    for (const Slot& slot : old) {
        if (slot.entry != 0) slots_[freeSlot(slot.hash)] = slot;
    }
}

Value asText(const Value& value) { return value.getKind() == ValueKind::Text ? value : Value(value.getValue()); }

}  // namespace VEXA
