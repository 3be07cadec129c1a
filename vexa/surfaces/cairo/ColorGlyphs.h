#pragma once

#include <map>
#include <utility>

#include "vexa/support/core/Vector.h"
#include "vexa/surfaces/cairo/DevicePath.h"
#include "vexa/surfaces/cairo/FreeTypeLibrary.h"

namespace VEXA {

/// Glyphs that bring their own colours, as pictures: as large as their font has them, so that they stay sharp in print,
/// and scaled down for the screen. One for each document.
class ColorGlyphs {
public:
    /// With `inGroups` each picture is a group of its own: cairo lists a picture that comes twice on a page of a PDF
    /// twice among the page's resources, which no reader has to bear.
    explicit ColorGlyphs(bool inGroups) noexcept : inGroups_(inGroups) {}

    /// Paints the glyph of a text of this size (px) in its own colours. False when it has none: it is an outline.
    bool paint(cairo_t* context, FT_Face face, const SmartPtr<FontFace>& font, const cairo_glyph_t& glyph,
               double fontSize, const cairo_matrix_t& matrix, double opacity);

private:
    struct Picture {
        CairoPtr<cairo_surface_t> pixels;
        double pixelsPerEm = 1;
        double left = 0;  ///< of the picture from the glyph's origin, in its pixels
        double top = 0;   ///< upward
    };
    using Key = std::pair<const FontFace*, unsigned long>;

    const Picture& pictureOf(FT_Face face, const SmartPtr<FontFace>& font, unsigned long glyph);
    static Picture load(FT_Face face, unsigned long glyph);

    bool inGroups_;
    std::map<Key, Picture> pictures_;
    Vector<SmartPtr<FontFace>> fonts_;  ///< of the pictures, which are known by their addresses
};

}  // namespace VEXA
