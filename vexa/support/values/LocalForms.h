#pragma once

#include <string>
#include <string_view>

namespace VEXA {

/// `05.03.2024`, `3/25/2024` or `2024/3/5` as `2024-03-05`, with a time of day as `2024-03-05T14:30:00`, whose zone is
/// dropped; the day comes first where both orders make a date. Empty for a text that is no such date.
std::string suggestDate(std::string_view text);

/// A number with a decimal comma, separated thousands, a typographic minus, a percent or currency sign, or a unit
/// behind a blank, as `12.5`. Empty for other texts.
std::string suggestNumber(std::string_view text);

/// The number in `text` without separated thousands and with a decimal point. Of commas and points the last one is the
/// decimal one; one that is repeated, and a single comma with three digits behind it, separates thousands.
std::string withDecimalPoint(std::string text);

}  // namespace VEXA
