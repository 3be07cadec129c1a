#pragma once

#include <cstdint>
#include <span>

namespace VEXA {

/// Characters in a row; the width of the first stands at `start` in the widths of every style.
struct LiberationSansBlock {
    char32_t first;
    std::uint16_t count;
    std::uint16_t start;
};

/// Advance widths in 1/2048 em. The first 95 are those of U+0020 to U+007E.
struct LiberationSansStyle {
    const std::uint16_t* widths;
    int average;  ///< of the letters A to Z in both cases
};

inline constexpr int kLiberationSansUnitsPerEm = 2048;
/// From the font's table `hhea`, both positive.
inline constexpr int kLiberationSansAscent = 1854;
inline constexpr int kLiberationSansDescent = 434;

const LiberationSansStyle& liberationSansStyle(bool bold, bool italic) noexcept;
/// In the order of the characters, without overlaps; the same for all styles.
std::span<const LiberationSansBlock> liberationSansBlocks() noexcept;

}  // namespace VEXA
