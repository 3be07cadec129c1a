#include "vexa/support/drawing/FontService.h"

// In place of the service of this folder, in a library built with VEXA_FONTS=OFF.

namespace VEXA {

std::shared_ptr<FontService> defaultFontService() { return builtInFontService(); }

}  // namespace VEXA
