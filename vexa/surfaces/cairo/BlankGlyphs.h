#pragma once

#include <map>
#include <string>

#include "vexa/fonts/ShapedText.h"
#include "vexa/support/core/Vector.h"

namespace VEXA {

/// Glyphs that show nothing, one for each text as far as they go: what lies on a picture so that it can be searched and
/// copied. Readers know a glyph by one text, and not all heed that a page gives it another. One for each document.
class BlankGlyphs {
public:
    /// The first texts get glyphs of their own.
    unsigned long glyphFor(const std::string& utf8);
    /// The font of the glyphs.
    const FontFace& font();

private:
    void find();

    SmartPtr<FontFace> font_;
    Vector<unsigned long> glyphs_;
    std::map<std::string, unsigned long> taken_;
};

}  // namespace VEXA
