#include "vexa/support/drawing/FontFamilyList.h"

#include <algorithm>
#include <iterator>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/String.h"

namespace VEXA {

namespace {

std::u32string_view trimmed(std::u32string_view text) noexcept {
    while (!text.empty() && String::isSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && String::isSpace(text.back())) text.remove_suffix(1);
    return text;
}

constexpr char32_t toLower(char32_t c) noexcept { return c >= U'A' && c <= U'Z' ? c + 32 : c; }

}  // namespace

FontFamilyList::FontFamilyList(std::u32string_view list) noexcept : rest_(list.substr(0, Limits::kFontFamily)) {}

std::optional<std::u32string_view> FontFamilyList::next() noexcept {
    while (!rest_.empty()) {
        const std::u32string_view name = takeName();
        if (!name.empty()) return name;
    }
    return std::nullopt;
}

// Commas within quotation marks belong to a name, the marks do not.
std::u32string_view FontFamilyList::takeName() noexcept {
    rest_ = trimmed(rest_);
    const char32_t mark = rest_.empty() ? U'\0' : rest_.front();
    std::u32string_view name;
    if (mark == U'"' || mark == U'\'') {
        rest_.remove_prefix(1);
        name = rest_.substr(0, rest_.find(mark));
        rest_.remove_prefix(std::min(name.size() + 1, rest_.size()));
        rest_.remove_prefix(std::min(rest_.find(U','), rest_.size()));
    } else {
        name = rest_.substr(0, rest_.find(U','));
        rest_.remove_prefix(name.size());
    }
    if (!rest_.empty()) rest_.remove_prefix(1);
    return trimmed(name);
}

std::optional<std::string_view> genericFamily(std::u32string_view name) noexcept {
    static constexpr std::string_view kGeneric[] = {"sans-serif", "serif",   "monospace",
                                                    "cursive",    "fantasy", "system-ui"};
    const auto* const found = std::find_if(std::begin(kGeneric), std::end(kGeneric),
                                           [name](std::string_view each) { return equalsIgnoringCase(name, each); });
    return found == std::end(kGeneric) ? std::nullopt : std::optional(*found);
}

bool equalsIgnoringCase(std::u32string_view name, std::string_view ascii) noexcept {
    return std::equal(name.begin(), name.end(), ascii.begin(), ascii.end(), [](char32_t a, char b) {
        return toLower(a) == toLower(static_cast<char32_t>(static_cast<unsigned char>(b)));
    });
}

}  // namespace VEXA
