#pragma once

#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"
#include "vexa/surfaces/cairo/CairoCanvas.h"

namespace VEXA {

/// The pages of a format: what a surface draws on, and the file that it becomes.
class CairoPages {
public:
    virtual ~CairoPages() = default;

    /// Forgets what the last document left behind when it did not end.
    virtual void beginDocument() = 0;
    /// Throws Exception 35000 to 35002 for a page that cannot be.
    /// The canvas stays until the page ends.
    virtual CairoCanvas beginPage(const SizeF& size) = 0;
    virtual void endPage() = 0;
    virtual void endDocument(const DocumentInfo& info, IO::Stream& stream) = 0;
    /// Writes what documents were joined to.
    virtual void finish(IO::Stream& stream) = 0;
};

/// Throws Exception 35000 when a page has no extent.
void requireExtent(const SizeF& page);

/// Paints the whole page, below all.
void paintBackground(cairo_t* context, const Color& color);

}  // namespace VEXA
