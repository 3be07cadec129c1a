#include "vexa/surfaces/cairo/PdfGlyphs.h"

#include <cmath>

#include "vexa/surfaces/cairo/DrawingFace.h"
#include "vexa/surfaces/cairo/OutlinePath.h"

namespace VEXA {

namespace {

/// Sizes on the page, in pt, between which FreeType can scale a font; others are filled as paths.
constexpr double kSmallest = 1.0 / 16;
constexpr double kLargest = 4096;

bool isScalable(double fontSize, const cairo_matrix_t& m) noexcept {
    const double largest = enlargementOf(m);
    const double smallest = std::abs(m.xx * m.yy - m.xy * m.yx) / largest;
    return fontSize * smallest >= kSmallest && fontSize * largest <= kLargest;
}

/// The blank in the place of a glyph. Cairo leaves out a text whose box, cut to whole points, is empty: half a point
/// off them no box is.
cairo_glyph_t blankAt(const cairo_glyph_t& glyph, unsigned long blank, const cairo_matrix_t& m) {
    const auto halfPoint = [](double place) { return std::floor(place) + 0.5 - place; };
    const double dx = halfPoint(m.xx * glyph.x + m.xy * glyph.y + m.x0);
    const double dy = halfPoint(m.yx * glyph.x + m.yy * glyph.y + m.y0);
    const double determinant = m.xx * m.yy - m.xy * m.yx;
    return {blank, glyph.x + (m.yy * dx - m.xy * dy) / determinant, glyph.y + (m.xx * dy - m.yx * dx) / determinant};
}

/// The glyphs, every other word a little off the line. A PDF tells advances in whole thousandths of an em, which cairo
/// cuts off, so that the end of a long text would come to stand half a pixel before its place. Where a glyph is off the
/// line by more than a thousandth of the size, cairo tells its place anew.
Vector<cairo_glyph_t> withWordsPlaced(const CairoClusters& text, Vector<cairo_glyph_t> glyphs, double fontSize) {
    const double step = fontSize * 0.0015;
    std::size_t glyph = 0;
    std::size_t bytes = 0;
    bool isOff = false;
    for (const cairo_text_cluster_t& cluster : text.clusters) {
        for (int i = 0; i < cluster.num_glyphs; ++i) glyphs[glyph++].y += isOff ? step : 0;
        if (text.utf8.compare(bytes, static_cast<std::size_t>(cluster.num_bytes), " ") == 0) isOff = !isOff;
        bytes += static_cast<std::size_t>(cluster.num_bytes);
    }
    return glyphs;
}

}  // namespace

void PdfGlyphs::paint(cairo_t* context, const PlacedRun& run, const cairo_matrix_t& matrix, double opacity) {
    const FontFace& font = *run.run->face;
    const CairoClusters text = clustersOf(*run.run, run.characters);
    if (font.isColored()) {
        paintColored(context, run, text, matrix, opacity);
    } else if (isScalable(run.fontSize, matrix)) {
        showText(context, DrawingFace::of(font)->cairoFace(), run.fontSize, matrix, text,
                 withWordsPlaced(text, run.glyphs, run.fontSize));
    } else {
        paintOutlines(context, run, matrix);
    }
}

void PdfGlyphs::paintOutlines(cairo_t* context, const PlacedRun& run, const cairo_matrix_t& matrix) {
    const BorrowedFace face(*run.run->face);
    for (const cairo_glyph_t& glyph : run.glyphs) paintOutline(context, face.get(), glyph, run.fontSize, matrix);
}

void PdfGlyphs::paintOutline(cairo_t* context, FT_Face face, const cairo_glyph_t& glyph, double fontSize,
                             const cairo_matrix_t& matrix) {
    const FT_Outline* const outline = outlineOf(face, glyph.index);
    if (outline == nullptr) return;
    record_.addOutline(static_cast<std::size_t>(outline->n_points));
    fillOutline(context, *outline, glyphMatrix(face, glyph, fontSize, matrix));
}

void PdfGlyphs::paintColored(cairo_t* context, const PlacedRun& run, const CairoClusters& text,
                             const cairo_matrix_t& matrix, double opacity) {
    const SmartPtr<FontFace>& font = run.run->face;
    const BorrowedFace face(*font);
    for (const cairo_glyph_t& glyph : run.glyphs) {
        if (colored_.paint(context, face.get(), font, glyph, run.fontSize, matrix, opacity)) {
            record_.addPicture();
        } else {
            paintOutline(context, face.get(), glyph, run.fontSize, matrix);
        }
    }
    if (isScalable(run.fontSize, matrix)) showBlanks(context, run, text, matrix);
}

void PdfGlyphs::showBlanks(cairo_t* context, const PlacedRun& run, const CairoClusters& text,
                           const cairo_matrix_t& matrix) {
    CairoClusters shown;
    Vector<cairo_glyph_t> blanks;
    const cairo_glyph_t* glyph = run.glyphs.data();
    std::size_t bytes = 0;
    for (const cairo_text_cluster_t& cluster : text.clusters) {
        const std::string characters = text.utf8.substr(bytes, static_cast<std::size_t>(cluster.num_bytes));
        bytes += characters.size();
        if (characters != " ") {  // readers see the gap, and with a glyph in it no gap
            blanks.push_back(blankAt(*glyph, blanks_.glyphFor(characters), matrix));
            shown.clusters.push_back({cluster.num_bytes, 1});
            shown.utf8 += characters;
        }
        glyph += cluster.num_glyphs;
    }
    showText(context, DrawingFace::of(blanks_.font())->cairoFace(), run.fontSize, matrix, shown, blanks);
}

void PdfGlyphs::showText(cairo_t* context, cairo_font_face_t* face, double fontSize, const cairo_matrix_t& matrix,
                         const CairoClusters& text, const Vector<cairo_glyph_t>& glyphs) {
    static constexpr cairo_matrix_t kIdentity{1, 0, 0, 1, 0, 0};
    record_.addGlyphs(glyphs.size());
    const CairoLibrary& library = cairo();
    const cairo_matrix_t size{fontSize, 0, 0, fontSize, 0, 0};
    const CairoPtr<cairo_font_options_t> options(library.font_options_create());
    library.font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    library.font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    library.set_matrix(context, &matrix);
    library.set_font_face(context, face);
    library.set_font_matrix(context, &size);
    library.set_font_options(context, options.get());
    library.show_text_glyphs(context, text.utf8.data(), static_cast<int>(text.utf8.size()), glyphs.data(),
                             static_cast<int>(glyphs.size()), text.clusters.data(),
                             static_cast<int>(text.clusters.size()), cairo_text_cluster_flags_t{});
    library.set_matrix(context, &kIdentity);
}

}  // namespace VEXA
