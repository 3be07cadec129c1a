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

}  // namespace VEXA
