#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace VEXA {

/// Width of a text in Liberation Sans, in 1/2048 em: widths and kerning of its characters, which is what shaping such a
/// text comes to. Nothing when it has a character that the font lacks, or one that joins or reorders with others.
/// A control character is as wide as the space it is drawn as.
std::optional<std::int64_t> liberationSansTextWidth(bool bold, bool italic, std::u32string_view text) noexcept;

/// The same for every text: what the font lacks is an average wide (1 em for East Asian characters and emoji), marks
/// that combine are not wide at all.
std::int64_t approximateTextWidth(bool bold, bool italic, std::u32string_view text) noexcept;

}  // namespace VEXA
