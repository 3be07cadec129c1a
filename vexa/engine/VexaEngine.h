#pragma once

#include "vexa/engine/VexaRoot.h"
#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

/// The entry to the library. Calls keep nothing and may run on several threads at once, each with its own stream and
/// surface.
class VexaEngine {
public:
    VexaEngine() = delete;

    /// What a width and height in percent refer to, in px.
    static constexpr float kReferenceWidth = 800;
    static constexpr float kReferenceHeight = 600;

    /// Reads a chart document. Throws what the parser finds wrong, NullPointerException for a stream without an
    /// element, and UnreacheableCodeException for a document whose top element is no root.
    static XmlObjPtr<VexaRoot> loadStream(SmartPtr<IO::Stream> stream);
    /// Paints a chart document into the page that the surface has open.
    static void render(SmartPtr<IO::Stream> stream, SmartPtr<RenderContext> context);
    /// Paints a chart document as a document of one page of its size, and tells the surface what the chart is about.
    /// When it ends by an exception, page and document stay open.
    static void renderPage(SmartPtr<IO::Stream> stream, SmartPtr<RenderContext> context);
};

}  // namespace VEXA
