#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "vexa/support/drawing/Color.h"

namespace VEXA {

/// 0xRRGGBB of a colour as CSS writes it: `#rgb`, `#rrggbb`, `rgb(…)` or a colour name, white space at both ends
/// allowed. Components out of range are cut to it, as CSS does.
std::optional<std::uint32_t> parseColor(std::string_view text) noexcept;

struct ColorName {
    std::string_view name;
    std::uint32_t rgb;  ///< 0xRRGGBB
};

/// The CSS colours, their names in lower case and in the order of the alphabet.
std::span<const ColorName> namedColors() noexcept;
/// Their names alone.
std::span<const std::string_view> colorNames() noexcept;

/// 0xRRGGBB of a CSS colour name in any case.
std::optional<std::uint32_t> findColorName(std::string_view name) noexcept;

SmartPtr<Color> makeColor(std::uint32_t rgb);

}  // namespace VEXA
