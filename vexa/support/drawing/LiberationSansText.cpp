#include "vexa/support/drawing/LiberationSansText.h"

#include <algorithm>
#include <iterator>

#include "vexa/support/drawing/LiberationSansKerning.h"
#include "vexa/support/drawing/LiberationSansWidths.h"

namespace VEXA {

namespace {

constexpr std::int16_t kEm = kLiberationSansUnitsPerEm;

/// Characters whose width follows from their kind.
struct KindOfWidth {
    char32_t first;
    char32_t last;
    std::int16_t width;
};

/// Marks that combine with the character before them and characters without a look of their own have no width; East
/// Asian characters and emoji fill the em, the halves of a flag half of it. In order.
constexpr KindOfWidth kKinds[] = {
    {0x00AD, 0x00AD, 0},          // soft hyphen
    {0x0300, 0x036F, 0},          // combining diacritical marks
    {0x0483, 0x0489, 0},          // Cyrillic
    {0x0591, 0x05BD, 0},          // Hebrew points
    {0x0610, 0x061C, 0},          // Arabic marks
    {0x064B, 0x065F, 0},          // Arabic vowel signs
    {0x0900, 0x0902, 0},          // Devanagari
    {0x093C, 0x093C, 0},          //
    {0x0941, 0x0948, 0},          //
    {0x094D, 0x094D, 0},          //
    {0x0E31, 0x0E31, 0},          // Thai
    {0x0E34, 0x0E3A, 0},          //
    {0x0E47, 0x0E4E, 0},          //
    {0x1100, 0x115F, kEm},        // Hangul, leading consonants
    {0x1160, 0x11FF, 0},          // vowels and trailing consonants join them
    {0x180B, 0x180F, 0},          // Mongolian selectors
    {0x1AB0, 0x1AFF, 0},          // combining diacritical marks extended
    {0x1DC0, 0x1DFF, 0},          // and supplement
    {0x200B, 0x200F, 0},          // zero-width space and joiners, direction marks
    {0x2028, 0x202E, 0},          // separators, direction of embedded text
    {0x2060, 0x206F, 0},          // invisible operators
    {0x20D0, 0x20FF, 0},          // combining marks for symbols
    {0x2600, 0x27BF, kEm},        // miscellaneous symbols, dingbats
    {0x2E80, 0x3029, kEm},        // radicals, ideographic punctuation
    {0x302A, 0x302F, 0},          // tone marks
    {0x3030, 0x3098, kEm},        // Hiragana
    {0x3099, 0x309A, 0},          // voicing marks
    {0x309B, 0xA4CF, kEm},        // Katakana to Yi
    {0xA960, 0xA97F, kEm},        // Hangul
    {0xAC00, 0xD7A3, kEm},        // Hangul syllables
    {0xF900, 0xFAFF, kEm},        // compatibility ideographs
    {0xFE00, 0xFE0F, 0},          // variation selectors
    {0xFE20, 0xFE2F, 0},          // combining half marks
    {0xFE30, 0xFE6F, kEm},        // compatibility forms
    {0xFEFF, 0xFEFF, 0},          // byte order mark
    {0xFF01, 0xFF60, kEm},        // full-width forms
    {0xFF61, 0xFFDC, kEm / 2},    // half-width forms
    {0xFFE0, 0xFFE6, kEm},        // full-width signs
    {0x1F000, 0x1F1E5, kEm},      // tiles, cards, enclosed letters
    {0x1F1E6, 0x1F1FF, kEm / 2},  // two of them make a flag
    {0x1F200, 0x1F3FA, kEm},      // emoji
    {0x1F3FB, 0x1F3FF, 0},        // skin tones
    {0x1F400, 0x1FAFF, kEm},      // emoji
    {0x20000, 0x3FFFF, kEm},      // ideographs
    {0xE0000, 0xE0FFF, 0},        // tags, variation selectors
};

/// The last entry whose `first` is at or before the character; null when there is none.
template <class Entry>
const Entry* entryAtOrBefore(const Entry* begin, const Entry* end, char32_t character) noexcept {
    const Entry* after =
        std::upper_bound(begin, end, character, [](char32_t value, const Entry& entry) { return value < entry.first; });
    return after == begin ? nullptr : after - 1;
}

constexpr int kUnknown = -1;

/// Width of a character whose look does not depend on its neighbours; kUnknown for any other.
int standaloneWidth(const LiberationSansStyle& style, char32_t character) noexcept {
    const char32_t ascii = character - U' ';
    if (ascii < 95) return style.widths[ascii];
    const KindOfWidth* kind = entryAtOrBefore(std::begin(kKinds), std::end(kKinds), character);
    if (kind != nullptr && character <= kind->last) return kUnknown;
    const auto blocks = liberationSansBlocks();
    const LiberationSansBlock* block = entryAtOrBefore(blocks.data(), blocks.data() + blocks.size(), character);
    const char32_t index = character - block->first;
    return index < block->count ? style.widths[block->start + index] : kUnknown;
}

/// What is drawn for a character: a space for a control character.
constexpr char32_t shownFor(char32_t character) noexcept {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) ? U' ' : character;
}

int approximateWidth(const LiberationSansStyle& style, char32_t character) noexcept {
    const int width = standaloneWidth(style, character);
    if (width != kUnknown) return width;
    const KindOfWidth* kind = entryAtOrBefore(std::begin(kKinds), std::end(kKinds), character);
    return kind != nullptr && character <= kind->last ? kind->width : style.average;
}

/// Sums widths and kerning; stops with kUnknown at the first character whose width is that.
template <class WidthOf>
std::int64_t sumOf(bool bold, bool italic, std::u32string_view text, WidthOf widthOf) noexcept {
    const LiberationSansStyle& style = liberationSansStyle(bold, italic);
    std::int64_t sum = 0;
    char32_t previous = 0;
    for (const char32_t each : text) {
        const char32_t character = shownFor(each);
        const int width = widthOf(style, character);
        if (width == kUnknown) return kUnknown;
        sum += width + liberationSansKerning(bold, italic, previous, character);
        previous = character;
    }
    return sum;
}

}  // namespace

std::optional<std::int64_t> liberationSansTextWidth(bool bold, bool italic, std::u32string_view text) noexcept {
    const std::int64_t width = sumOf(bold, italic, text, standaloneWidth);
    return width == kUnknown ? std::nullopt : std::optional(width);
}

std::int64_t approximateTextWidth(bool bold, bool italic, std::u32string_view text) noexcept {
    return sumOf(bold, italic, text, approximateWidth);
}

}  // namespace VEXA
