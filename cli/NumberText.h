#pragma once

#include <optional>
#include <string_view>

namespace VEXA::Cli {

/// The whole text as a decimal number between the two; none when it is not one. Never depends on the locale.
std::optional<float> readNumber(std::string_view text, float least, float most) noexcept;

}  // namespace VEXA::Cli
