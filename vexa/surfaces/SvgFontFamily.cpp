#include "vexa/surfaces/SvgFontFamily.h"

#include "vexa/support/core/String.h"
#include "vexa/support/drawing/FontFamilyList.h"

namespace VEXA {

namespace {

constexpr bool isLetter(char32_t c) noexcept {
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || c >= 0xA0;
}

constexpr bool isWordPart(char32_t c) noexcept {
    return isLetter(c) || (c >= U'0' && c <= U'9') || c == U'-' || c == U'_';
}

/// Words that each start with a letter, one space between them: such a name needs no quotation marks.
bool isPlain(std::u32string_view name) noexcept {
    bool atStart = true;
    for (const char32_t c : name) {
        if (c == U' ' ? atStart : !(atStart ? isLetter(c) : isWordPart(c))) return false;
        atStart = c == U' ';
    }
    return !atStart;
}

void appendName(std::u32string_view name, std::string& out) {
    const bool plain = isPlain(name);
    if (!plain) out.push_back('\'');
    for (const char32_t c : name) {
        if (c == U'\'' || c == U'\\') out.push_back('\\');
        appendUtf8(c < 0x20 ? U' ' : c, out);
    }
    if (!plain) out.push_back('\'');
}

}  // namespace

std::string svgFontFamilies(std::u32string_view requested) {
    std::string families;
    FontFamilyList list(requested);
    while (const auto next = list.next()) {
        const std::u32string_view name = *next;
        const auto generic = genericFamily(name);
        if (generic == "sans-serif") break;
        if (generic) return families.append(*generic);
        appendName(name, families);
        families += ", ";
    }
    return families.append(kSvgDefaultFamilies);
}

}  // namespace VEXA
