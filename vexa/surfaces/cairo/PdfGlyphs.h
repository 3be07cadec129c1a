#pragma once

#include "vexa/surfaces/cairo/BlankGlyphs.h"
#include "vexa/surfaces/cairo/CairoClusters.h"
#include "vexa/surfaces/cairo/ColorGlyphs.h"
#include "vexa/surfaces/cairo/GlyphPainter.h"
#include "vexa/surfaces/cairo/PageRecord.h"

namespace VEXA {

/// Glyphs in a PDF: text that can be searched and copied. Coloured glyphs are pictures; blanks that stand for their
/// characters lie on them.
class PdfGlyphs final : public GlyphPainter {
public:
    /// REQUIRES: the record stays as long as this.
    explicit PdfGlyphs(PageRecord& record) noexcept : record_(record) {}

    void paint(cairo_t* context, const PlacedRun& run, const cairo_matrix_t& matrix, double opacity) override;

private:
    void paintOutlines(cairo_t* context, const PlacedRun& run, const cairo_matrix_t& matrix);
    void paintOutline(cairo_t* context, FT_Face face, const cairo_glyph_t& glyph, double fontSize,
                      const cairo_matrix_t& matrix);
    void paintColored(cairo_t* context, const PlacedRun& run, const CairoClusters& text, const cairo_matrix_t& matrix,
                      double opacity);
    void showBlanks(cairo_t* context, const PlacedRun& run, const CairoClusters& text, const cairo_matrix_t& matrix);
    void showText(cairo_t* context, cairo_font_face_t* face, double fontSize, const cairo_matrix_t& matrix,
                  const CairoClusters& text, const Vector<cairo_glyph_t>& glyphs);

    PageRecord& record_;
    ColorGlyphs colored_{true};
    BlankGlyphs blanks_;
};

}  // namespace VEXA
