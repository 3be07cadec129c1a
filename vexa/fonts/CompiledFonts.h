#pragma once

#include <cstddef>
#include <span>

namespace VEXA {

/// The font file of Liberation Sans in one of its four styles, which is part of the program.
std::span<const std::byte> compiledFont(bool bold, bool italic) noexcept;

}  // namespace VEXA
