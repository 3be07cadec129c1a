#pragma once

#include <type_traits>

#include "vexa/support/core/Vector.h"
#include "vexa/surfaces/cairo/DevicePath.h"
#include "vexa/surfaces/cairo/FreeTypeLibrary.h"

namespace VEXA {

/// A rectangle of pixels.
struct PixelBox {
    long left = 0;
    long top = 0;
    long right = 0;
    long bottom = 0;

    bool isEmpty() const noexcept { return right <= left || bottom <= top; }
    long area() const noexcept { return isEmpty() ? 0 : (right - left) * (bottom - top); }
    PixelBox intersected(const PixelBox& other) const noexcept;
    PixelBox united(const PixelBox& other) const noexcept;
};

/// Outlines of glyphs that are painted together, by how much of each pixel they cover. FreeType tells that exactly and
/// four times faster than cairo fills paths; cairo's own glyphs stand on whole pixels, which makes uneven gaps.
class GlyphMask {
public:
    explicit GlyphMask(PixelBox page) noexcept : page_(page) {}

    /// Takes an outline in the units of its face; what lies outside the page is left out. False when there is no room
    /// for it before the others are painted. REQUIRES: a matrix that makes it no larger than some thousand pixels.
    bool add(const FT_Outline& outline, const cairo_matrix_t& matrix);
    /// Paints all with cairo's present source and forgets them.
    void paint(cairo_t* context);

private:
    using Tag = std::remove_pointer_t<decltype(FT_Outline::tags)>;
    using Contour = std::remove_pointer_t<decltype(FT_Outline::contours)>;
    struct Counts {
        decltype(FT_Outline::n_points) points;
        decltype(FT_Outline::n_contours) contours;
    };

    void append(const FT_Outline& outline, const cairo_matrix_t& matrix);
    void drawAll();
    void clear() noexcept;
    static void addSpans(int y, int count, const FT_Span* spans, void* mask);

    PixelBox page_;
    PixelBox box_;              ///< the pixels that the outlines touch
    Vector<Counts> outlines_;   ///< whose points and contours follow each other
    Vector<FT_Vector> points_;  ///< in 1/64 pixel, y upward
    Vector<Tag> tags_;
    Vector<Contour> contours_;
    Vector<unsigned char> coverage_;  ///< of the box, 0 to 255
    long stride_ = 0;
};

}  // namespace VEXA
