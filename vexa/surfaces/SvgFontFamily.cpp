#include "vexa/surfaces/SvgFontFamily.h"

#include <algorithm>
#include <optional>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/String.h"

namespace VEXA {

namespace {

constexpr bool isLetter(char32_t c) noexcept {
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || c >= 0xA0;
}

constexpr bool isWordPart(char32_t c) noexcept {
    return isLetter(c) || (c >= U'0' && c <= U'9') || c == U'-' || c == U'_';
}

std::u32string_view trimmed(std::u32string_view text) noexcept {
    while (!text.empty() && String::isSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && String::isSpace(text.back())) text.remove_suffix(1);
    return text;
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

std::optional<std::string_view> genericFamily(std::u32string_view name) noexcept {
    static constexpr std::string_view kGeneric[] = {"sans-serif", "serif",   "monospace",
                                                    "cursive",    "fantasy", "system-ui"};
    const auto matches = [name](std::string_view generic) {
        return std::equal(name.begin(), name.end(), generic.begin(), generic.end(), [](char32_t a, char b) {
            return (a >= U'A' && a <= U'Z' ? a + 32 : a) == static_cast<char32_t>(b);
        });
    };
    const auto* found = std::find_if(std::begin(kGeneric), std::end(kGeneric), matches);
    return found == std::end(kGeneric) ? std::nullopt : std::optional(*found);
}

/// Takes the next name off the list; commas within quotation marks belong to a name, the marks do not.
std::u32string_view takeName(std::u32string_view& list) noexcept {
    list = trimmed(list);
    const char32_t mark = list.empty() ? U'\0' : list.front();
    std::u32string_view name;
    if (mark == U'"' || mark == U'\'') {
        list.remove_prefix(1);
        name = list.substr(0, list.find(mark));
        list.remove_prefix(std::min(name.size() + 1, list.size()));
        list.remove_prefix(std::min(list.find(U','), list.size()));
    } else {
        name = list.substr(0, list.find(U','));
        list.remove_prefix(name.size());
    }
    if (!list.empty()) list.remove_prefix(1);
    return trimmed(name);
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
    std::u32string_view list = requested.substr(0, Limits::kFontFamily);
    while (!list.empty()) {
        const std::u32string_view name = takeName(list);
        if (name.empty()) continue;
        const auto generic = genericFamily(name);
        if (generic == "sans-serif") break;
        if (generic) return families.append(*generic);
        appendName(name, families);
        families += ", ";
    }
    return families.append(kSvgDefaultFamilies);
}

}  // namespace VEXA
