#include "vexa/support/xml/XmlNameTable.h"

namespace VEXA {

std::uint32_t XmlNameTable::hash(std::string_view name) noexcept {
    std::uint32_t h = 2166136261U;  // FNV-1a
    for (const char c : name) h = (h ^ static_cast<unsigned char>(c)) * 16777619U;
    return h ^ (h >> 15);
}

void XmlNameTable::insert(std::string_view name, int position) noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash(name) & mask;
    while (slots_[at].position >= 0 && slots_[at].name != name) at = (at + 1) & mask;
    slots_[at] = {name, position};
}

void XmlNameTable::add(std::string_view name, int position) {
    if ((count_ + 1) * 2 > slots_.size()) {
        Vector<Slot> old(slots_.empty() ? 8 : slots_.size() * 2);
        old.swap(slots_);
        for (const Slot& slot : old) {
            if (slot.position >= 0) insert(slot.name, slot.position);
        }
    }
    if (find(name) < 0) ++count_;
    insert(name, position);
}

int XmlNameTable::find(std::string_view name) const noexcept {
    if (slots_.empty()) return -1;
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash(name) & mask;; at = (at + 1) & mask) {
        const Slot& slot = slots_[at];
        if (slot.position < 0 || slot.name == name) return slot.position;
    }
}

}  // namespace VEXA
