#include "vexa/surfaces/cairo/DashBudget.h"

#include <algorithm>

#include "vexa/support/core/Limits.h"

namespace VEXA {

double DashBudget::stretchOf(double dashes) noexcept {
    const double allowed = std::min(left_, Limits::kDashes);
    if (!(allowed >= 1)) return 0;
    left_ -= std::min(dashes, allowed);
    return std::max(dashes / allowed, 1.0);
}

void DashBudget::renew() noexcept { left_ = Limits::kPageDashes; }

}  // namespace VEXA
