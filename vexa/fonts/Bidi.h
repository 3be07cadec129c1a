#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace VEXA {

/// Level of a character in a text of both directions: even from left to right, odd from right to left.
using BidiLevel = std::uint8_t;

/// The level of each character of a line (Unicode Standard Annex #9); its first letter tells the direction of the
/// whole. Empty when all are 0, which needs no library. Throws Exception 1007 when FriBidi is needed and missing.
std::vector<BidiLevel> bidiLevels(std::u32string_view text);

/// The order in which pieces of a line are seen from left to right, for the level of each piece in the order of the
/// text (rule L2).
std::vector<std::uint32_t> visualOrder(std::span<const BidiLevel> levels);

}  // namespace VEXA
