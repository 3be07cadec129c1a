#pragma once

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/check/CheckOptions.h"
#include "vexa/support/core/Stream.h"

namespace VEXA::Cli {

/// `vexa check`: tells the problems of every document in the order of the inputs, as text to the console or as JSON to
/// `output`. Throws Exception when a directory of fonts cannot be used, or the output cannot be written.
ExitStatus check(const CheckOptions& options, IO::Stream& output, Console& console);

}  // namespace VEXA::Cli
