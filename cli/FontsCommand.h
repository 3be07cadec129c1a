#pragma once

#include "cli/ExitStatus.h"
#include "cli/FontsOptions.h"

namespace VEXA::Cli {

/// `vexa fonts`: the font that the family resolves to, and for each text its width and the fonts that draw it. Throws
/// Exception when a directory of fonts cannot be used.
Answer listFonts(const FontsOptions& options);

}  // namespace VEXA::Cli
