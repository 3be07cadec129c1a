#pragma once

#include <cstddef>

#include "cli/DocumentPainter.h"
#include "cli/RenderPlan.h"

namespace VEXA::Cli {

/// Draws the documents of a plan as pages of one file, in the order of the plan.
class JoinedRenderer {
public:
    /// Keeps references to both.
    JoinedRenderer(const RenderPlan& plan, const Painter& paint) : plan_(plan), paint_(paint) {}

    /// Draws the next document. After one that failed, the others are drawn to be checked.
    RenderResult drawNext();
    /// Writes the file, whole or not at all. Not when a document failed: a page that is missing would not be missed.
    /// REQUIRES: all are drawn.
    RenderResult writeFile();

private:
    /// The surface of the file, or of one that nobody gets once a document has failed and left its page half drawn.
    SmartPtr<RenderContext> surface();

    const RenderPlan& plan_;
    const Painter& paint_;
    SmartPtr<IO::MemoryStream> file_;
    JoinedPages pages_;
    std::size_t drawn_ = 0;
    std::size_t failed_ = 0;
};

}  // namespace VEXA::Cli
