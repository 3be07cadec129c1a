#pragma once

#include <span>

#include "vexa/fonts/HarfBuzz.h"
#include "vexa/fonts/TextItems.h"

namespace VEXA {

/// The glyphs of a piece of text, from left to right, in units of its face.
struct ItemGlyphs {
    std::span<const hb_glyph_info_t> infos;
    std::span<const hb_glyph_position_t> positions;

    double advance() const noexcept;
};

/// Shapes the pieces of one text.
class ItemShaper {
public:
    /// The text belongs to the caller.
    explicit ItemShaper(std::u32string_view text);

    /// The glyphs are valid until the next call on this thread. Throws std::bad_alloc.
    ItemGlyphs shape(const TextItem& item);

private:
    hb_buffer_t& bufferFor(const TextItem& item);

    std::u32string_view text_;
    const char* ofHan_;
    HarfBuzzPtr<hb_buffer_t> largeBuffer_;
};

}  // namespace VEXA
