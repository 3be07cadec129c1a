#include "vexa/support/core/QuotedText.h"

#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

/// Controls could drive a terminal, line separators forge a second message, and directional formatting characters
/// show the message in another order than it has.
bool isInvisible(char32_t c) noexcept {
    if (c < 0x20 || (c >= 0x7F && c <= 0x9F)) return true;
    return c == 0x00AD || c == 0x061C || (c >= 0x200B && c <= 0x200F) || (c >= 0x2028 && c <= 0x202E) ||
           (c >= 0x2060 && c <= 0x206F) || c == 0xFEFF;
}

void appendEscape(char32_t c, std::u32string& out) {
    constexpr std::u32string_view kDigits = U"0123456789abcdef";
    out += U'\\';
    switch (c) {
        case U'\t':
            out += U't';
            return;
        case U'\n':
            out += U'n';
            return;
        case U'\r':
            out += U'r';
            return;
        default:
            break;
    }
    out += U'u';
    for (int shift = 12; shift >= 0; shift -= 4) out += kDigits[c >> shift & 0xFU];
}

String escape(std::u32string_view text, std::u32string_view end) {
    std::u32string result;
    result.reserve(text.size() + end.size());
    for (const char32_t c : text) {
        if (isInvisible(c)) {
            appendEscape(c, result);
        } else {
            result += c;
        }
    }
    return String(result.append(end));
}

}  // namespace

String quoteForMessage(const String& text) {
    if (text.length() <= Limits::kQuotedCharacters) return escapeForMessage(text);
    return escape(text.view().substr(0, Limits::kQuotedCharacters), U"\u2026");
}

String escapeForMessage(const String& text) {
    for (const char32_t c : text.view()) {
        if (isInvisible(c)) return escape(text.view(), {});
    }
    return text;
}

}  // namespace VEXA
