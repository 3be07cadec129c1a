#include "vexa/engine/MissingCharacters.h"

#include <cstdint>
#include <string>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

constexpr int kOneMissing = 34031;
constexpr int kSomeMissing = 34033;
constexpr std::size_t kNamed = 5;

/// "U+16A0": at least four digits.
std::string codePointOf(char32_t character) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (int shift = 20; shift >= 0; shift -= 4) {
        if (shift < 16 || character >> shift != 0) text += kDigits[character >> shift & 0xFU];
    }
    return "U+" + text;
}

std::string nameOf(char32_t character) {
    return '"' + quoteForMessage(String({&character, 1})).toUtf8() + "\" (" + codePointOf(character) + ")";
}

std::string namesOf(std::u32string_view characters) {
    std::string names;
    for (const char32_t c : characters.substr(0, kNamed)) names += (names.empty() ? "" : ", ") + nameOf(c);
    if (characters.size() <= kNamed) return names;
    const bool isCounted = characters.size() < Limits::kQuotedCharacters;
    return names + " and " + (isCounted ? std::to_string(characters.size() - kNamed) : "many") + " more";
}

}  // namespace

void tellMissingCharacters(std::u32string_view characters, SourcePlace place) {
    if (characters.empty()) return;
    Log::warning(characters.size() == 1 ? kOneMissing : kSomeMissing, {String(namesOf(characters))}, place);
}

}  // namespace VEXA
