#pragma once

#include <cstddef>
#include <string_view>

namespace VEXA {

/// Reads and writes UTF-8. Reading is strict: no overlong forms, no surrogates, nothing above 10FFFF. Each maximal
/// ill-formed piece (a lead byte with the continuation bytes that could follow it) counts as one U+FFFD, as Unicode
/// recommends.
class Utf8 {
public:
    static constexpr char32_t kReplacement = U'\uFFFD';

    static bool isAscii(std::string_view bytes) noexcept;
    /// Code points that `bytes` decode to.
    static std::size_t count(std::string_view bytes) noexcept;
    /// Writes count(bytes) code points to `out`.
    static void decode(std::string_view bytes, char32_t* out) noexcept;

    /// Bytes that encode() writes for these code points. REQUIRES: none is above 10FFFF.
    static std::size_t encodedSize(std::u32string_view characters) noexcept;
    /// Writes one code point, U+FFFD for what is no character, and returns the end: 1 to 4 bytes.
    static char* encode(char32_t character, char* out) noexcept;

    static constexpr bool isCharacter(char32_t c) noexcept { return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF); }
};

}  // namespace VEXA
