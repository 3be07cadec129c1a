#pragma once

#include <string>

#include "cli/OutputFormat.h"
#include "cli/RenderOptions.h"

namespace VEXA::Cli {

/// Reads --scale, --dpi and --background. `problem` becomes a sentence for the user when a value is wrong or the format
/// has no use for an option.
PictureOptions readPictureOptions(const RenderOptions& options, OutputFormat format, std::string& problem);

}  // namespace VEXA::Cli
