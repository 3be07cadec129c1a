#pragma once

#include <functional>
#include <string>

#include "cli/RenderPlan.h"

namespace VEXA::Cli {

/// Reads a document from the stream and draws it as one page.
using Painter = std::function<void(SmartPtr<IO::Stream>, SmartPtr<RenderContext>)>;

/// How one document went.
struct RenderResult {
    bool failed = false;
    std::string messages;  ///< its warnings and errors, whole lines
};

/// Draws one document and writes its picture, whole or not at all. Whatever goes wrong is told in the result.
/// Safe from several threads at once.
RenderResult renderDocument(const RenderJob& job, const Painter& paint);

}  // namespace VEXA::Cli
