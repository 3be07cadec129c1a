#include "vexa/cartesian/StackRoles.h"

namespace VEXA {

void StackRoles::add(std::size_t serie, const Value& category, float value) {
    const std::size_t at = categories_.add(category);
    if (at == stacks_.size()) stacks_.emplace_back();
    const auto index = static_cast<std::uint32_t>(serie);
    Stack& stack = stacks_[at];
    if (stack.latest == index) return;
    stack.latest = index;
    if (stack.first == kNone) stack.first = index;
    if (value > 0) stack.lastPositive = index;
    if (value < 0) stack.lastNegative = index;
}

const StackRoles::Stack& StackRoles::find(const Value& category) const noexcept {
    static constexpr Stack kEmpty;
    const std::size_t at = categories_.find(category);
    return at == ValueIndex::kNone ? kEmpty : stacks_[at];
}

BarRole StackRoles::roleOf(std::size_t serie, const Value& category, float value) const noexcept {
    const Stack& stack = find(category);
    const auto index = static_cast<std::uint32_t>(serie);
    BarRole role;
    role.grouping = SerieGrouping::Stacked;
    role.sign = signOf(value);
    role.isLastPositive = stack.lastPositive == index;
    role.isLastNegative = stack.lastNegative == index;
    role.isLowestNegative = stack.lastPositive == kNone && stack.first == index;
    return role;
}

bool StackRoles::hasCap(std::size_t serie, const Value& category) const noexcept {
    const Stack& stack = find(category);
    return (stack.lastPositive == kNone ? stack.first : stack.lastPositive) == serie;
}

}  // namespace VEXA
