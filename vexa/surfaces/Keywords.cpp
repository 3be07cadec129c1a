#include "vexa/surfaces/Keywords.h"

namespace VEXA {

std::string_view keywordOf(LineCap cap) noexcept {
    if (cap == LineCap::Round) return "round";
    return cap == LineCap::Square ? "square" : "butt";
}

std::string_view keywordOf(LineJoin join) noexcept {
    if (join == LineJoin::Round) return "round";
    return join == LineJoin::Bevel ? "bevel" : "miter";
}

std::string_view keywordOf(GradientUnits units) noexcept {
    return units == GradientUnits::UserSpaceOnUse ? "userSpaceOnUse" : "objectBoundingBox";
}

std::string_view keywordOf(GradientSpreadMethod spread) noexcept {
    if (spread == GradientSpreadMethod::Reflect) return "reflect";
    return spread == GradientSpreadMethod::Repeat ? "repeat" : "pad";
}

void appendColor(std::uint32_t rgb, std::string& out) {
    static constexpr char kDigits[] = "0123456789abcdef";
    char text[7] = {'#'};
    for (int i = 1; i < 7; ++i) text[i] = kDigits[(rgb >> (24 - 4 * i)) & 15U];
    out.append(text, sizeof text);
}

}  // namespace VEXA
