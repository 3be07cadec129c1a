#include "cli/FontsCommand.h"

namespace VEXA::Cli {

Answer listFonts(const FontsOptions&) {
    return {"vexa fonts: this vexa was built without fonts; it measures texts by a table\n", kWrongUsage};
}

}  // namespace VEXA::Cli
