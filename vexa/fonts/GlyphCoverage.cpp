#include "vexa/fonts/GlyphCoverage.h"

#include "vexa/fonts/HarfBuzz.h"

namespace VEXA {

namespace {

/// What stands for a character in a font that lacks it: HarfBuzz makes wide spaces of the ordinary one, and the hyphen
/// that does not break a line of the one that does.
char32_t substituteOf(char32_t c) noexcept {
    if (c == 0x00A0 || (c >= 0x2000 && c <= 0x200A) || c == 0x202F || c == 0x205F || c == 0x3000) return U' ';
    return c == 0x2011 ? 0x2010 : 0;
}

/// A base and a mark that the face has as one; 0 when it has not.
char32_t composed(const FontFace& face, char32_t base, char32_t mark) {
    const HarfBuzz& hb = harfBuzz();
    hb_codepoint_t both = 0;
    const bool exists = hb.unicode_compose(hb.unicode_funcs_get_default(), base, mark, &both) != 0;
    return exists && face.hasGlyph(both) ? both : 0;
}

}  // namespace

bool showsCharacter(const FontFace& face, char32_t character) {
    if (face.hasGlyph(character)) return true;
    const char32_t substitute = substituteOf(character);
    if (substitute != 0 && face.hasGlyph(substitute)) return true;
    const HarfBuzz& hb = harfBuzz();
    hb_codepoint_t base = character;
    hb_codepoint_t mark = 0;
    while (hb.unicode_decompose(hb.unicode_funcs_get_default(), base, &base, &mark) != 0) {
        if (mark != 0 && !face.hasGlyph(mark)) return false;
        if (face.hasGlyph(base)) return true;
    }
    return false;
}

bool showsCluster(const FontFace& face, std::u32string_view characters) {
    char32_t previous = 0;
    for (const char32_t c : characters) {
        if (showsCharacter(face, c)) {
            previous = c;
        } else {
            previous = previous == 0 ? 0 : composed(face, previous, c);
            if (previous == 0) return false;
        }
    }
    return true;
}

}  // namespace VEXA
