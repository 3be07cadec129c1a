#pragma once

#include <cstdint>
#include <string_view>

#include "vexa/support/core/Vector.h"

namespace VEXA {

/// A small hash table from names to positions, built once. Views of static text.
class XmlNameTable {
public:
    /// Makes room for so many names at once.
    void reserve(std::size_t names);
    /// A name that is there gets the new position.
    void add(std::string_view name, int position);
    /// -1 when the name is not there.
    int find(std::string_view name) const noexcept;

private:
    struct Slot {
        std::string_view name;
        int position = -1;
    };
    static std::uint32_t hash(std::string_view name) noexcept;
    void grow(std::size_t size);
    /// Where the name is, or where it would go.
    std::size_t place(std::string_view name) const noexcept;

    Vector<Slot> slots_;  // a power of two, at most half full
    std::size_t count_ = 0;
};

}  // namespace VEXA
