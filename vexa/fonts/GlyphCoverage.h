#pragma once

#include <string_view>

#include "vexa/fonts/FontFace.h"

namespace VEXA {

/// Whether the face shows the character: with a glyph of its own, those of its parts, or one that looks the same.
bool showsCharacter(const FontFace& face, char32_t character);

/// Whether it shows each of the characters, a letter and its mark also by a glyph for both.
bool showsCluster(const FontFace& face, std::u32string_view characters);

}  // namespace VEXA
