#pragma once

#include <cstdint>

namespace VEXA {

/// How the colours of a face are shaded. An amount goes with it, see Color::getLighter and Color::getDarker.
enum class ColorAspect : std::int32_t { Normal = 0, Lighter = 1, Darker = 2 };

}  // namespace VEXA
