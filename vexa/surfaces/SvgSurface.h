#pragma once

#include <memory>

#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

/// Writes an SVG 1.1 document: real text, gradients and clips defined once and shared, numbers to 2 decimals.
/// The same operations give the same bytes. One page to a document: a second beginPage throws
/// UnreacheableCodeException; without a page the document has no size. The bytes reach the stream with endDocument, so
/// a render that fails writes nothing.
class SvgSurface final : public RenderContext {
public:
    explicit SvgSurface(SmartPtr<IO::Stream> stream);
    ~SvgSurface() override;

    /// Forgets what was drawn before.
    void beginDocument() override;
    void endDocument() override;
    void beginPage(const SizeF& size) override;
    void endPage() override;
    void drawLine(float x1, float y1, float x2, float y2) override;
    void drawRectangle(float x, float y, float width, float height, float rx, float ry) override;
    void drawEllipse(float cx, float cy, float rx, float ry) override;
    void drawPath(SmartPtr<Path> path) override;
    void drawText(const String& text, int length, float x, float y, float spacing, int flags) override;

private:
    struct Body;
    std::unique_ptr<Body> body_;
    SmartPtr<IO::Stream> stream_;
};

}  // namespace VEXA
