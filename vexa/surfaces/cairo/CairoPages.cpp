#include "vexa/surfaces/cairo/CairoPages.h"

#include <cmath>

#include "vexa/support/core/Exception.h"

namespace VEXA {

void requireExtent(const SizeF& page) {
    const auto [width, height] = page;
    if (width > 0 && height > 0 && std::isfinite(width) && std::isfinite(height)) return;
    raise(Exception(35000, {double{width}, double{height}}), "CairoSurface", __LINE__);
}

void paintBackground(cairo_t* context, const Color& color) {
    cairo().set_source_rgba(context, color.red() / 255.0, color.green() / 255.0, color.blue() / 255.0, 1);
    cairo().paint(context);
}

}  // namespace VEXA
