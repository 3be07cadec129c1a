#pragma once

namespace VEXA {

/// The character for a text in a PDF: U+FFFD for a noncharacter, such as U+FFFE, for which cairo would refuse the file.
constexpr char32_t cairoCharacter(char32_t c) noexcept {
    const bool isNoncharacter = (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFE) == 0xFFFE;
    return isNoncharacter ? U'\uFFFD' : c;
}

}  // namespace VEXA
