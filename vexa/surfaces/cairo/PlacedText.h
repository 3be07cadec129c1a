#pragma once

#include <string_view>

#include "vexa/fonts/ShapedText.h"
#include "vexa/support/drawing/Font.h"
#include "vexa/surfaces/cairo/DevicePath.h"

namespace VEXA {

/// A run of glyphs with their origins in user space.
struct PlacedRun {
    const GlyphRun* run = nullptr;
    std::u32string_view characters;  ///< of the whole text
    double fontSize = 0;             ///< px
    Vector<cairo_glyph_t> glyphs;
};

struct PlacedText {
    ShapedText shaped;
    Vector<PlacedRun> runs{};  ///< they refer to `shaped` and to the text
    PathBox box{};             ///< as wide as the text runs, as high as its font
};

/// Shapes a text with the program it was measured with, where that tells its glyphs, else with the system's fonts, and
/// places it with its baseline starting at `at`. `spacing` (px) is added after each cluster of characters.
/// REQUIRES: a font with a size above 0; the text stays.
PlacedText placeText(const String& text, const SmartPtr<Font>& font, PointF at, float spacing);

}  // namespace VEXA
