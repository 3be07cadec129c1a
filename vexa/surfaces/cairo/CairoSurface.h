#pragma once

#include <memory>

#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

struct PngOptions {
    float scale = 1;             ///< pixels of the picture to one px of the chart; above 0
    float dpi = 0;               ///< written into the picture (chunk pHYs) when above 0; does not change the pixels
    SmartPtr<Color> background;  ///< painted below all; transparent when empty
};

struct PdfOptions {
    SmartPtr<Color> background;
    /// Documents drawn one after the other become pages of one file, which is written by `finish`.
    bool joinsDocuments = false;
};

/// Draws with cairo, which is loaded when the first surface is made: pixels as PNG, or pages as PDF. Text is drawn with
/// the very glyphs that were measured; in a PDF it can be searched and copied, and its fonts are embedded. The same
/// operations give the same bytes, which reach the stream with endDocument (with `finish` where documents are joined).
///
/// Throws Exception 1007 when cairo is not installed, 350xx for a picture beyond the limits or a failure of cairo, and
/// UnreacheableCodeException for a second page of a PNG.
class CairoSurface final : public RenderContext {
public:
    static SmartPtr<CairoSurface> png(SmartPtr<IO::Stream> stream, PngOptions options = {});
    static SmartPtr<CairoSurface> pdf(SmartPtr<IO::Stream> stream, PdfOptions options = {});
    ~CairoSurface() override;

    void beginDocument() override;
    void endDocument() override;
    void beginPage(const SizeF& size) override;
    void endPage() override;
    void drawLine(float x1, float y1, float x2, float y2) override;
    void drawRectangle(float x, float y, float width, float height, float rx, float ry) override;
    void drawEllipse(float cx, float cy, float rx, float ry) override;
    void drawPath(SmartPtr<Path> path) override;
    void drawText(const String& text, int length, float x, float y, float spacing, int flags) override;

    /// Writes the file that joined documents became.
    void finish();

private:
    struct Body;
    explicit CairoSurface(std::unique_ptr<Body> body);
    template <class T, class... A>
    friend SmartPtr<T> make(A&&...);

    std::unique_ptr<Body> body_;
};

}  // namespace VEXA
