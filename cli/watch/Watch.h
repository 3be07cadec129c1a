#pragma once

#include <functional>

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/RenderOptions.h"

namespace VEXA::Cli {

/// `vexa render --watch`: draws, then draws again what changes, until it is told to end by Ctrl-C or SIGTERM, which is
/// no failure. Mistakes in a document, files that are gone and outputs that cannot be written are told and waited out.
/// `draw` draws the inputs of some options once.
ExitStatus watch(const RenderOptions& options, const std::function<ExitStatus(const RenderOptions&)>& draw,
                 Console& console);

}  // namespace VEXA::Cli
