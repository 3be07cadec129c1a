#pragma once

#include <string>
#include <string_view>

namespace VEXA {

/// What a text that is no value of its type was most likely meant to be: without stray blanks, with a point for a
/// decimal comma, with the # of a colour, or the nearest keyword or colour name. `typeName` is the one of the type's
/// traits, `reads` says whether a text is a value. Empty when nothing is near.
std::string suggestValue(std::string_view text, std::string_view typeName, bool (*reads)(std::string_view));

}  // namespace VEXA
