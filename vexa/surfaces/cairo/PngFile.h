#pragma once

#include <string>

#include "vexa/surfaces/cairo/PixelImage.h"

namespace VEXA {

/// A PNG file of the picture: 8 bits for each of red, green and blue, and for alpha where not all is opaque. `dpi`
/// above 0 is written as pixels per metre.
std::string encodePng(const PixelImage& image, float dpi);

}  // namespace VEXA
