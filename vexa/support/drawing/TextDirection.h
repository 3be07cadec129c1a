#pragma once

#include <string_view>

namespace VEXA {

/// Whether a text as a whole runs from right to left: whether its first letter does, such as an Arabic or Hebrew one
/// (Unicode Standard Annex #9, rules P2 and P3: digits and signs do not count, nor does what stands between isolating
/// marks). A text without letters runs from left to right.
bool isRightToLeft(std::u32string_view text) noexcept;

}  // namespace VEXA
