#include "cli/CallersFonts.h"

// In place of what needs fonts in the folder above, in a program built with VEXA_FONTS=OFF.

namespace VEXA::Cli {

std::shared_ptr<FontService> callersFonts(const std::vector<std::string>&) { return nullptr; }

}  // namespace VEXA::Cli
