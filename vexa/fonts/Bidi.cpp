#include "vexa/fonts/Bidi.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <numeric>

#include "vexa/fonts/FriBidi.h"
#include "vexa/support/core/String.h"
#include "vexa/support/drawing/TextDirection.h"

namespace VEXA {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

/// Blocks of right-to-left scripts, and the marks that set a direction. Without any of them all levels are 0.
constexpr Range kReordering[] = {{0x0590, 0x08FF}, {0x200F, 0x200F}, {0x202A, 0x202E},   {0x2066, 0x2069},
                                 {0xFB1D, 0xFDFF}, {0xFE70, 0xFEFE}, {0x10800, 0x10FFF}, {0x1E800, 0x1EFFF}};

bool isReordering(char32_t c) noexcept {
    if (c < kReordering[0].first) return false;
    return std::any_of(std::begin(kReordering), std::end(kReordering),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

bool isInvisibleAtEnd(char32_t c) noexcept { return String::isSpace(c) || (c >= 0x200B && c <= 0x2069); }

/// What FriBidi makes of a text whose own direction is given: rules X1 to L1, without the end of the line.
std::vector<BidiLevel> resolvedLevels(std::u32string_view text, FriBidiParType direction) {
    static_assert(sizeof(FriBidiChar) == sizeof(char32_t) && sizeof(FriBidiLevel) == sizeof(BidiLevel));
    const FriBidi& library = friBidi();
    const auto length = static_cast<FriBidiStrIndex>(text.size());
    const auto* const characters = reinterpret_cast<const FriBidiChar*>(text.data());
    std::vector<FriBidiCharType> types(text.size());
    std::vector<FriBidiBracketType> brackets(text.size());
    std::vector<BidiLevel> levels(text.size());
    library.get_bidi_types(characters, length, types.data());
    library.get_bracket_types(characters, length, types.data(), brackets.data());
    const auto highest = library.get_par_embedding_levels_ex(types.data(), brackets.data(), length, &direction,
                                                             reinterpret_cast<FriBidiLevel*>(levels.data()));
    if (highest == 0) throw std::bad_alloc();
    return levels;
}

}  // namespace

std::vector<BidiLevel> bidiLevels(std::u32string_view text) {
    if (std::none_of(text.begin(), text.end(), isReordering)) return {};
    const bool rightToLeft = isRightToLeft(text);
    auto levels = resolvedLevels(text, rightToLeft ? FRIBIDI_PAR_RTL : FRIBIDI_PAR_LTR);
    // Space at the end of a line stands where the line ends.
    for (std::size_t i = text.size(); i > 0 && isInvisibleAtEnd(text[i - 1]); --i) levels[i - 1] = rightToLeft ? 1 : 0;
    return levels;
}

std::vector<std::uint32_t> visualOrder(std::span<const BidiLevel> levels) {
    std::vector<std::uint32_t> order(levels.size());
    std::iota(order.begin(), order.end(), 0U);
    if (levels.empty()) return order;
    const BidiLevel highest = *std::max_element(levels.begin(), levels.end());
    for (BidiLevel level = highest; level > 0; --level) {
        const auto isLower = [&](std::uint32_t piece) { return levels[piece] < level; };
        for (auto begin = order.begin(); begin != order.end();) {
            begin = std::find_if_not(begin, order.end(), isLower);
            const auto end = std::find_if(begin, order.end(), isLower);
            std::reverse(begin, end);
            begin = end;
        }
    }
    return order;
}

}  // namespace VEXA
