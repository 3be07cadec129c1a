#pragma once

#include <string>
#include <string_view>

namespace VEXA {

/// What a text that is no value of its type was most likely meant to be: without stray blanks, with a point for a
/// decimal comma, with the # of a colour, or the nearest keyword or colour name. `typeName` is the one of the type's
/// traits, `reads` says whether a text is a value. Empty when nothing is near.
std::string suggestValue(std::string_view text, std::string_view typeName, bool (*reads)(std::string_view));

/// `05.03.2024`, `3/25/2024` or `2024/3/5` as `2024-03-05`; the day comes first where both orders make a date. Empty
/// for a text that is no such date.
std::string suggestDate(std::string_view text);

/// A number with a decimal comma, with separated thousands or with a percent sign, as `12.5`. Empty for other texts.
std::string suggestNumber(std::string_view text);

}  // namespace VEXA
