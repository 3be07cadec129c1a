#pragma once

#include <memory>

#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

class DisplayListWriter;

/// Writes one JSON object a line in painting order: the picture as data. docs/display-list.md gives the format.
/// The lines reach the stream in blocks, the last of them with endPage, endDocument or flush().
class DisplayListSurface final : public RenderContext {
public:
    explicit DisplayListSurface(SmartPtr<IO::Stream> stream);
    ~DisplayListSurface() override;

    void beginDocument() override;
    void endDocument() override;
    void beginPage(const SizeF& size) override;
    void endPage() override;
    void drawLine(float x1, float y1, float x2, float y2) override;
    void drawRectangle(float x, float y, float width, float height, float rx, float ry) override;
    void drawEllipse(float cx, float cy, float rx, float ry) override;
    void drawPath(SmartPtr<Path> path) override;
    void drawText(const String& text, int length, float x, float y, float spacing, int flags) override;

    /// Hands the lines so far to the stream; for who paints without pages.
    void flush();

private:
    void endLine();

    SmartPtr<IO::Stream> stream_;
    std::unique_ptr<DisplayListWriter> writer_;
};

}  // namespace VEXA
