#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA::Fuzz {

/// What became of a document.
struct Painting {
    std::string bytes;  ///< the picture; empty when the document was refused
    int refusal = 0;    ///< number of the message that refused it
    std::string fault;  ///< what is wrong with the messages; empty when nothing is
    SizeF page;         ///< px, before any scale
};

/// Makes the surface that writes to the stream, for a page of that size.
using SurfaceMaker = std::function<SmartPtr<RenderContext>(SmartPtr<IO::Stream>, SizeF page)>;

/// Reads a document and paints it as one page, as VexaEngine::renderPage does. Messages go nowhere, but are looked at:
/// not too many, not too long, no control characters. Lets every exception pass that is no VEXA::Exception.
Painting paint(std::string_view document, const SurfaceMaker& makeSurface);

SmartPtr<RenderContext> displayListSurface(SmartPtr<IO::Stream> stream, SizeF page);
SmartPtr<RenderContext> svgSurface(SmartPtr<IO::Stream> stream, SizeF page);

}  // namespace VEXA::Fuzz
