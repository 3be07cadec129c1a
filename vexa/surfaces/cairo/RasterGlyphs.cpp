#include "vexa/surfaces/cairo/RasterGlyphs.h"

#include "vexa/surfaces/cairo/DrawingFace.h"
#include "vexa/surfaces/cairo/OutlinePath.h"

namespace VEXA {

namespace {

constexpr double kLargest = 512;  // pixels to the em; larger glyphs are few, and filled as paths

}  // namespace

void RasterGlyphs::paint(cairo_t* context, const PlacedRun& run, const cairo_matrix_t& matrix, double opacity) {
    const SmartPtr<FontFace>& font = run.run->face;
    const BorrowedFace face(*font);
    const bool isLarge = !(run.fontSize * enlargementOf(matrix) <= kLargest);
    for (const cairo_glyph_t& glyph : run.glyphs) {
        if (font->isColored() && colored_.paint(context, face.get(), font, glyph, run.fontSize, matrix, opacity)) {
            continue;
        }
        const FT_Outline* const outline = outlineOf(face.get(), glyph.index);
        if (outline == nullptr) continue;
        const cairo_matrix_t place = glyphMatrix(face.get(), glyph, run.fontSize, matrix);
        if (isLarge) {
            fillOutline(context, *outline, place);
        } else if (!mask_.add(*outline, place)) {
            mask_.paint(context);
            mask_.add(*outline, place);
        }
    }
    mask_.paint(context);
}

}  // namespace VEXA
