#include "vexa/fonts/SystemFontService.h"

namespace VEXA {

std::shared_ptr<FontService> defaultFontService() { return systemFontService(); }

}  // namespace VEXA
