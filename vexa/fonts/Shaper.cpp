#include "vexa/fonts/Shaper.h"

#include <algorithm>

#include "vexa/fonts/Characters.h"
#include "vexa/fonts/ItemShaper.h"
#include "vexa/support/drawing/LiberationSansText.h"

namespace VEXA {

namespace {

bool isSpaced(char32_t c) noexcept { return Characters::isControl(c) || c == 0x2028 || c == 0x2029; }

std::u32string asLine(std::u32string_view text) {
    std::u32string line(text);
    std::replace_if(line.begin(), line.end(), isSpaced, U' ');
    return line;
}

/// Whether shaping comes to the widths and kerning of the built-in table. Such a text is one piece.
bool isSimple(std::u32string_view text, const FontStack& stack) noexcept {
    const FontStyleRequest style = stack.fallback.style;
    return stack.faces.front() == compiledFace(style) && liberationSansTextWidth(style.bold, style.italic, text);
}

std::vector<TextItem> itemsOf(std::u32string_view text, const FontStack& stack, FaceFinder& finder,
                              std::u32string& missing) {
    if (text.empty()) return {};
    if (!isSimple(text, stack)) return itemize(text, stack, finder, missing);
    return {{0, static_cast<std::uint32_t>(text.size()), stack.faces.front().get()}};
}

double unitsOf(const FontFace& face) noexcept { return face.metrics().unitsPerEm; }

/// The glyphs of a piece, beginning at `start` and in units `scale` times those of their face.
GlyphRun runOf(const TextItem& item, const ItemGlyphs& glyphs, double start, double scale) {
    GlyphRun run{item.face, item.isRightToLeft(), item.begin, item.end - item.begin, {}, scale * glyphs.advance()};
    run.glyphs.reserve(glyphs.infos.size());
    double pen = 0;
    for (std::size_t i = 0; i < glyphs.infos.size(); ++i) {
        const hb_glyph_position_t& at = glyphs.positions[i];
        run.glyphs.push_back({glyphs.infos[i].codepoint, glyphs.infos[i].cluster,
                              static_cast<float>(start + scale * (pen + at.x_offset)),
                              static_cast<float>(-scale * at.y_offset)});
        pen += at.x_advance;
    }
    return run;
}

std::vector<std::uint32_t> orderOf(const std::vector<TextItem>& items) {
    std::vector<BidiLevel> levels(items.size());
    std::transform(items.begin(), items.end(), levels.begin(), [](const TextItem& item) { return item.level; });
    return visualOrder(levels);
}

}  // namespace

ShapedText shapeText(std::u32string_view text, const FontStack& stack, FaceFinder& finder) {
    ShapedText result;
    const std::u32string line = asLine(text);
    const auto items = itemsOf(line, stack, finder, result.missing);
    const double units = unitsOf(*stack.faces.front());
    ItemShaper shaper(line);
    result.runs.reserve(items.size());
    for (const std::uint32_t i : orderOf(items)) {
        const double scale = units / unitsOf(*items[i].face);
        result.runs.push_back(runOf(items[i], shaper.shape(items[i]), result.advance, scale));
        result.advance += result.runs.back().advance;
    }
    return result;
}

ShapedText measureText(std::u32string_view text, const FontStack& stack, FaceFinder& finder) {
    ShapedText result;
    const std::u32string line = asLine(text);
    const double units = unitsOf(*stack.faces.front());
    ItemShaper shaper(line);
    for (const TextItem& item : itemsOf(line, stack, finder, result.missing)) {
        result.advance += shaper.shape(item).advance() * (units / unitsOf(*item.face));
    }
    return result;
}

}  // namespace VEXA
