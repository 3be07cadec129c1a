#pragma once

#include "vexa/support/values/Length.h"

namespace VEXA {

/// x, y, width, height; empty (all 0) by default.
struct ViewBox {
    SLengthOrPercent x;
    SLengthOrPercent y;
    SLengthOrPercent width;
    SLengthOrPercent height;
    friend constexpr bool operator==(const ViewBox&, const ViewBox&) = default;
};

VEXA_VALUE_TRAITS(ViewBox);

}  // namespace VEXA
