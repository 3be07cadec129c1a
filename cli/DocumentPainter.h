#pragma once

#include <functional>
#include <string>

#include "cli/Messages.h"
#include "cli/RenderPlan.h"
#include "vexa/support/core/Stream.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA::Cli {

/// Reads a document from the stream and draws it as one page.
using Painter = std::function<void(SmartPtr<IO::Stream>, SmartPtr<RenderContext>)>;

/// How one step went.
struct RenderResult {
    bool failed = false;
    std::string messages;  ///< its warnings and errors, whole lines
};

/// The document of that name; "-" is standard input. Throws Exception when it cannot be read.
SmartPtr<IO::Stream> openInput(const std::string& input);

/// Draws the document of a job on the surface that `open` gives. False when something failed, which `messages` then
/// tells; for a strict job that is a warning, too.
bool paintDocument(const RenderJob& job, const Painter& paint, const std::function<SmartPtr<RenderContext>()>& open,
                   MessageCollector& messages);

/// Has `finish` complete a picture and writes its bytes, whole or not at all. False when something failed, which
/// `messages` then tells about the output.
bool writePicture(const std::string& output, const IO::MemoryStream& picture, const std::function<void()>& finish,
                  MessageCollector& messages);

}  // namespace VEXA::Cli
