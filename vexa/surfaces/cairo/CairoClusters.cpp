#include "vexa/surfaces/cairo/CairoClusters.h"

#include <algorithm>

#include "vexa/surfaces/cairo/CairoText.h"

namespace VEXA {

namespace {

bool isControl(char32_t c) noexcept { return c < U' ' || (c >= 0x7F && c < 0xA0); }

void appendCharacters(std::u32string_view characters, std::string& out) {
    for (const char32_t c : characters) appendUtf8(isControl(c) ? U' ' : cairoCharacter(c), out);
}

}  // namespace

CairoClusters clustersOf(const GlyphRun& run, std::u32string_view characters) {
    CairoClusters result;
    const std::size_t end = std::min(std::size_t{run.firstCharacter} + run.characterCount, characters.size());
    const std::size_t start = std::min<std::size_t>(run.firstCharacter, end);
    std::size_t told = run.isRightToLeft ? end : start;  // up to where characters were met
    for (std::size_t i = 0; i < run.glyphs.size();) {
        const std::size_t first = i;
        while (i < run.glyphs.size() && run.glyphs[i].cluster == run.glyphs[first].cluster) ++i;
        const bool isLast = i == run.glyphs.size();
        const std::size_t before = told;
        if (run.isRightToLeft) {
            told = isLast ? start : std::clamp<std::size_t>(run.glyphs[first].cluster, start, told);
        } else {
            told = isLast ? end : std::clamp<std::size_t>(run.glyphs[i].cluster, told, end);
        }
        const std::size_t bytes = result.utf8.size();
        const auto [from, to] = std::minmax(before, told);
        appendCharacters(characters.substr(from, to - from), result.utf8);
        result.clusters.push_back({static_cast<int>(result.utf8.size() - bytes), static_cast<int>(i - first)});
    }
    return result;
}

}  // namespace VEXA
