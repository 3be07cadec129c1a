#pragma once

#include <string>

#include "vexa/fonts/Fontconfig.h"

namespace VEXA {

/// A configuration with the fonts of the directory and of all below it, and nothing of the machine. Throws Exception
/// 34030 when it cannot be read, 34032 when it holds no font, 34034 when a font is cut off, 1007 without fontconfig.
FontconfigPtr<FcConfig> configurationOf(const std::string& directory);

}  // namespace VEXA
