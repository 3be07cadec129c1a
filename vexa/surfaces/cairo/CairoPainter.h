#pragma once

#include "vexa/support/drawing/RenderContext.h"
#include "vexa/surfaces/cairo/CairoCanvas.h"
#include "vexa/surfaces/cairo/ClipStack.h"
#include "vexa/surfaces/cairo/LongStroke.h"
#include "vexa/surfaces/cairo/PaintSource.h"
#include "vexa/surfaces/cairo/StrokeStyle.h"

namespace VEXA {

/// Paints the drawing operations on the page of a cairo context. Shapes with a coordinate that is not finite, and all
/// under a transform without an inverse (or as good as that), leave no mark.
class CairoPainter {
public:
    /// Begins a page. REQUIRES: what is to be drawn on stays until the page ends.
    void begin(const CairoCanvas& canvas);
    /// Ends the clips in force. Throws Exception 35003 when cairo failed.
    void end();
    /// Forgets the page.
    void drop() noexcept;
    bool hasPage() const noexcept { return context_ != nullptr; }
    /// Throws UnreacheableCodeException without a page.
    void requirePage() const;

    void shape(const DrawingState& state, const Path& path);
    void text(const DrawingState& state, const String& text, PointF at, float spacing);

private:
    /// Enters the clip and gives the transform in force; false when nothing is to be drawn in it.
    bool enter(const DrawingState& state, cairo_matrix_t& matrix);
    /// Counts what painting the current path takes, with a pen of so many pixels.
    void countPixels(const Paint& inside, const Paint& outline, double penWidth);
    void stroke(const Stroke& stroke, const Paint& paint, const Path& path, const PathBox& box,
                const cairo_matrix_t& matrix);

    cairo_t* context_ = nullptr;
    double scale_ = 1;
    GlyphPainter* glyphs_ = nullptr;
    PageRecord* record_ = nullptr;  ///< null for pixels
    PixelWork* pixels_ = nullptr;   ///< null for others
    ClipStack clips_;
    DashBudget dashes_;
};

}  // namespace VEXA
