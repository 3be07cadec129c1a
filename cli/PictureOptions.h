#pragma once

#include "vexa/support/drawing/Color.h"

namespace VEXA::Cli {

/// What a picture is made with, beside the document. A format takes what it knows of.
struct PictureOptions {
    float scale = 1;             ///< pixels to one px of the chart
    float dpi = 0;               ///< written into the picture when above 0; does not change the pixels
    SmartPtr<Color> background;  ///< painted below all; nothing when empty
};

}  // namespace VEXA::Cli
