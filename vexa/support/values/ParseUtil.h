#pragma once

#include <cstddef>
#include <string_view>

#include "vexa/support/core/String.h"

namespace VEXA {

/// Reading texts piece by piece.
class ParseUtil {
public:
    /// The next run of characters that are not white space (String::isSpace), white space before it skipped. `position`
    /// moves past it. Empty when only white space is left. The view is of `text`.
    static std::u32string_view extractWord(const String& text, std::size_t& position) noexcept;
};

}  // namespace VEXA
