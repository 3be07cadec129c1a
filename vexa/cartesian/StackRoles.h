#pragma once

#include "vexa/cartesian/BarSolids.h"
#include "vexa/cartesian/ValueIndex.h"

namespace VEXA {

/// Which series ends the stack of each category, above and below. Constant time for each question.
class StackRoles {
public:
    /// All points of a chart, series by series, each in document order. Of two points of a series with one category the
    /// first counts.
    void add(std::size_t serie, const Value& category, float value);

    /// What the bar of that series with that value is in its category; a role of no stack is filled with its sign only.
    BarRole roleOf(std::size_t serie, const Value& category, float value) const noexcept;
    /// Whether the series' bar has the cap of the category's cylinders: the last one with a positive value, or else the
    /// first one with a point there.
    bool hasCap(std::size_t serie, const Value& category) const noexcept;

private:
    static constexpr std::uint32_t kNone = static_cast<std::uint32_t>(-1);
    struct Stack {
        std::uint32_t first = kNone;
        std::uint32_t latest = kNone;
        std::uint32_t lastPositive = kNone;
        std::uint32_t lastNegative = kNone;
    };
    const Stack& find(const Value& category) const noexcept;

    ValueIndex categories_;
    Vector<Stack> stacks_;
};

}  // namespace VEXA
