#include "vexa/surfaces/XmlText.h"

#include "vexa/support/core/String.h"

namespace VEXA {

namespace {

constexpr bool isControl(char32_t character) noexcept {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

const char* entityOf(char32_t character) noexcept {
    switch (character) {
        case U'&':
            return "&amp;";
        case U'<':
            return "&lt;";
        case U'>':
            return "&gt;";
        case U'"':
            return "&quot;";
        case U'\'':
            return "&#39;";
        default:
            return nullptr;
    }
}

void appendAscii(char32_t character, std::string& out) {
    if (const char* entity = entityOf(character)) {
        out += entity;
    } else {
        out.push_back(static_cast<char>(character));
    }
}

}  // namespace

void appendXmlText(std::u32string_view text, std::string& out) {
    for (const char32_t character : text) {
        if (isControl(character)) {
            out.push_back(' ');
        } else if (character < 0x80) {
            appendAscii(character, out);
        } else {
            appendUtf8(character == 0xFFFE || character == 0xFFFF ? U'\uFFFD' : character, out);
        }
    }
}

bool losesSpaces(std::u32string_view text) noexcept {
    bool afterSpace = true;
    for (const char32_t character : text) {
        const bool isSpace = character == U' ' || isControl(character);
        if (isSpace && afterSpace) return true;
        afterSpace = isSpace;
    }
    return afterSpace && !text.empty();
}

}  // namespace VEXA
