#pragma once

namespace VEXA {

/// How many dashes a page may still have.
class DashBudget {
public:
    /// By how much a pattern that would make so many dashes is to be stretched, 1 or more; 0 when it is to be left out.
    double stretchOf(double dashes) noexcept;
    void renew() noexcept;

private:
    double left_ = 0;
};

}  // namespace VEXA
