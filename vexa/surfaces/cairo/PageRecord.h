#pragma once

#include <cstddef>

#include "vexa/support/core/Limits.h"
#include "vexa/support/drawing/Path.h"
#include "vexa/surfaces/Paint.h"

namespace VEXA {

/// What the open page of a PDF takes, which cairo keeps to look at the whole of it before it writes any. Each addition
/// throws Exception 35007 when the page comes to more than Limits::kPdfBytes.
class PageRecord {
public:
    /// Bytes that cairo takes at most: for an area, an outline or a text, for a corner or a glyph in it, for a stop of
    /// its gradient.
    static constexpr double kOperation = 1200;
    static constexpr double kCorner = 100;
    static constexpr double kStop = 200;

    /// An area or an outline, if there is paint for it.
    void addShape(const Path& path, const Paint& paint);
    /// So many glyphs that are shown as one text.
    void addGlyphs(std::size_t count) { add(1, count, 0); }
    /// A glyph that is filled.
    void addOutline(std::size_t points) { add(1, points, 0); }
    /// A glyph that brings its own colours.
    void addPicture();
    /// A new page begins.
    void renew() noexcept { left_ = Limits::kPdfBytes; }

private:
    void add(std::size_t operations, std::size_t corners, std::size_t stops);

    double left_ = Limits::kPdfBytes;
};

}  // namespace VEXA
