#pragma once

#include <mutex>

#include "vexa/support/core/Vector.h"
#include "vexa/surfaces/cairo/CairoLibrary.h"
#include "vexa/surfaces/cairo/FreeTypeLibrary.h"

namespace VEXA {

/// What pages draw a font's glyphs with; one for each FontFace, shared by threads.
class DrawingFace {
public:
    /// Kept as long as the font.
    static std::shared_ptr<DrawingFace> of(const FontFace& font);
    explicit DrawingFace(const FontFace& font) : font_(font) {}
    ~DrawingFace();
    DrawingFace(const DrawingFace&) = delete;
    DrawingFace& operator=(const DrawingFace&) = delete;

    /// A face of FreeType that nobody else uses at the same time; to be given back.
    FT_Face borrow();
    void giveBack(FT_Face face) noexcept;

    /// The font for cairo, with a face of its own. Throws Exception 35003 or 35004.
    cairo_font_face_t* cairoFace();

private:
    const FontFace& font_;
    std::mutex mutex_;
    Vector<FT_Face> idle_;
    std::size_t opened_ = 0;
    CairoPtr<cairo_font_face_t> cairoFace_;
};

/// A borrowed face, given back when this ends.
class BorrowedFace {
public:
    explicit BorrowedFace(const FontFace& font) : drawing_(DrawingFace::of(font)), face_(drawing_->borrow()) {}
    ~BorrowedFace() { drawing_->giveBack(face_); }
    BorrowedFace(const BorrowedFace&) = delete;
    BorrowedFace& operator=(const BorrowedFace&) = delete;

    FT_Face get() const noexcept { return face_; }

private:
    std::shared_ptr<DrawingFace> drawing_;
    FT_Face face_;
};

}  // namespace VEXA
