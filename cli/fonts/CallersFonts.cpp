#include "cli/CallersFonts.h"

#include "vexa/fonts/SystemFontService.h"

namespace VEXA::Cli {

std::shared_ptr<FontService> callersFonts(const std::vector<std::string>& directories) {
    return systemFontService({directories});
}

}  // namespace VEXA::Cli
