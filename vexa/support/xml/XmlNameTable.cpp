#include "vexa/support/xml/XmlNameTable.h"

#include <bit>
#include <cstring>

namespace VEXA {

namespace {

template <class Word>
std::uint64_t wordAt(const char* text) noexcept {
    Word word;
    std::memcpy(&word, text, sizeof(word));
    return word;
}

/// The first and the last characters, up to eight of each; both in one number where they overlap anyway.
template <class Word>
std::uint64_t bothEnds(std::string_view name) noexcept {
    return wordAt<Word>(name.data()) ^ std::rotl(wordAt<Word>(name.data() + name.size() - sizeof(Word)), 29);
}

}  // namespace

/// Names of a schema are told apart by their ends and their length; all of them are hashed when a program starts.
std::uint32_t XmlNameTable::hash(std::string_view name) noexcept {
    std::uint64_t ends = 0;
    if (name.size() >= 8) {
        ends = bothEnds<std::uint64_t>(name);
    } else if (name.size() >= 4) {
        ends = bothEnds<std::uint32_t>(name);
    } else {
        for (const char c : name) ends = ends << 8 | static_cast<unsigned char>(c);
    }
    return static_cast<std::uint32_t>(((ends ^ name.size()) * 0x9E3779B97F4A7C15U) >>
                                      32);  // 2^64 over the golden ratio
}

void XmlNameTable::reserve(std::size_t names) {
    if (names * 2 > slots_.size()) grow(std::bit_ceil(names * 2));
}

void XmlNameTable::grow(std::size_t size) {
    Vector<Slot> old(size);
    old.swap(slots_);
    for (const Slot& slot : old) {
        if (slot.position >= 0) slots_[place(slot.name)] = slot;
    }
}

std::size_t XmlNameTable::place(std::string_view name) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash(name) & mask;
    while (slots_[at].position >= 0 && slots_[at].name != name) at = (at + 1) & mask;
    return at;
}

void XmlNameTable::add(std::string_view name, int position) {
    if ((count_ + 1) * 2 > slots_.size()) grow(slots_.empty() ? 8 : slots_.size() * 2);
    Slot& slot = slots_[place(name)];
    if (slot.position < 0) ++count_;
    slot = {name, position};
}

int XmlNameTable::find(std::string_view name) const noexcept {
    return slots_.empty() ? -1 : slots_[place(name)].position;
}

}  // namespace VEXA
