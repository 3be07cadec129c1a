#include "vexa/support/drawing/Color.h"

#include <algorithm>
#include <cmath>

namespace VEXA {

namespace {

std::uint8_t component(double value) noexcept {
    return static_cast<std::uint8_t>(std::round(std::clamp(value, 0.0, 255.0)));
}

/// The amount as arithmetic can bear it: no number means no change, and beyond these bounds every component is cut
/// anyway.
double usable(float amount) noexcept {
    return std::isnan(amount) ? 1.0 : std::clamp(static_cast<double>(amount), -1000.0, 1000.0);
}

template <class Shade>
SmartPtr<Color> shaded(const SmartPtr<Color>& color, Shade shade) {
    if (color.isEmpty()) return nullptr;
    return make<RGBColor>(component(shade(color->red())), component(shade(color->green())),
                          component(shade(color->blue())));
}

}  // namespace

std::uint32_t Color::rgb() const noexcept {
    return static_cast<std::uint32_t>(red_) << 16 | static_cast<std::uint32_t>(green_) << 8 | blue_;
}

void Color::appendHex(std::uint32_t rgb, std::string& out) {
    static constexpr char kDigits[] = "0123456789abcdef";
    char text[7] = {'#'};
    for (int i = 1; i < 7; ++i) text[i] = kDigits[(rgb >> (24 - 4 * i)) & 15U];
    out.append(text, sizeof text);
}

SmartPtr<Color> Color::getLighter(const SmartPtr<Color>& color, float amount) {
    return shaded(color, [rest = 1.0 - usable(amount)](int value) { return value + (255 - value) * rest; });
}

SmartPtr<Color> Color::getDarker(const SmartPtr<Color>& color, float amount) {
    return shaded(color, [factor = usable(amount)](int value) { return value * factor; });
}

}  // namespace VEXA
