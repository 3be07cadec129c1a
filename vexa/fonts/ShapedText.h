#pragma once

#include <cstdint>
#include <vector>

#include "vexa/fonts/FontFace.h"

namespace VEXA {

/// A glyph in its place. Lengths are in units of the program that shaped the text, from where the text starts, y
/// downward.
struct PlacedGlyph {
    std::uint32_t id = 0;
    std::uint32_t cluster = 0;  ///< index of the first character that it shows
    float x = 0;
    float y = 0;
};

/// Glyphs of one face that run in one direction, from left to right as they are seen.
struct GlyphRun {
    SmartPtr<FontFace> face;
    bool isRightToLeft = false;
    std::uint32_t firstCharacter = 0;  ///< the characters it shows are neighbours in the text
    std::uint32_t characterCount = 0;
    std::vector<PlacedGlyph> glyphs;
    double advance = 0;  ///< width of the run
};

/// A text laid out on one line. Runs stand from left to right.
struct ShapedText {
    std::vector<GlyphRun> runs;
    double advance = 0;
    std::u32string missing;  ///< characters that no font has, each once, at most 80; their glyphs are boxes
};

}  // namespace VEXA
