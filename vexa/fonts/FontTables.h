#pragma once

#include <cstddef>
#include <span>

namespace VEXA {

/// Whether a font file ends before its tables do, as a copy does that was broken off: libraries read what is there and
/// take every letter behind for a blank. False for what is no TrueType or OpenType file.
bool isCutOff(std::span<const std::byte> file) noexcept;

}  // namespace VEXA
