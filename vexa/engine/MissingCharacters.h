#pragma once

#include <string_view>

#include "vexa/support/core/Exception.h"

namespace VEXA {

/// Warns of characters of a picture that no font has: names the first ones. Nothing is told when there are none.
void tellMissingCharacters(std::u32string_view characters, SourcePlace place);

}  // namespace VEXA
