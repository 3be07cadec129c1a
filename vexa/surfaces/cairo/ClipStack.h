#pragma once

#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/RenderContext.h"
#include "vexa/surfaces/cairo/CairoLibrary.h"

namespace VEXA {

/// The clips in force on a cairo context: one saved state for each clip of the chain.
class ClipStack {
public:
    /// Enters and leaves clips until those of the chain are in force. `scale` is that of deviceMatrix.
    void enter(cairo_t* context, ClipNode* innermost, double scale);
    void leaveAll(cairo_t* context) { leave(context, 0); }
    /// For a context that is gone.
    void clear() noexcept { clips_.clear(); }

private:
    void leave(cairo_t* context, std::size_t depth);

    Vector<SmartPtr<ClipNode>> clips_;  ///< outermost first
};

}  // namespace VEXA
