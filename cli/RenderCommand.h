#pragma once

#include "cli/Console.h"
#include "cli/DocumentPainter.h"
#include "cli/ExitStatus.h"
#include "cli/RenderOptions.h"

namespace VEXA::Cli {

/// `vexa render`: draws every document of the options. Warnings and errors go to the console in the order of the
/// inputs. A document that fails does not stop the others. Throws Exception before anything is drawn when a directory
/// of fonts cannot be used, or a library that the format needs is missing.
ExitStatus render(const RenderOptions& options, const Painter& paint, Console& console);

}  // namespace VEXA::Cli
