#pragma once

#include <cstdint>
#include <string_view>

#include "vexa/support/core/Vector.h"

namespace VEXA {

/// A small hash table from names to positions, built once. Views of static text.
class XmlNameTable {
public:
    void add(std::string_view name, int position);
    /// -1 when the name is not there.
    int find(std::string_view name) const noexcept;

private:
    struct Slot {
        std::string_view name;
        int position = -1;
    };
    static std::uint32_t hash(std::string_view name) noexcept;
    void insert(std::string_view name, int position) noexcept;

    Vector<Slot> slots_;  // a power of two, at most half full
    std::size_t count_ = 0;
};

}  // namespace VEXA
