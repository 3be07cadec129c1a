#pragma once

#include <span>
#include <string_view>

namespace VEXA {

/// The one of `known` that `wanted` was most likely meant to be: the fewest inserted, dropped, changed or swapped
/// letters, ASCII case ignored; the first of several equally near. At most a third of the name may differ (1 to 3
/// letters), or else the first name that begins with it, where it has four letters. Empty when there is none, or when
/// `wanted` has more than 64 bytes. Looks at the first Limits::kNearestNames of them.
std::string_view nearestName(std::string_view wanted, std::span<const std::string_view> known) noexcept;

}  // namespace VEXA
