#include "cli/NumberText.h"

#include <charconv>

namespace VEXA::Cli {

std::optional<float> readNumber(std::string_view text, float least, float most) noexcept {
    float number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    const bool isInRange = number >= least && number <= most;  // false for what is not a number
    return error == std::errc() && stop == end && isInRange ? std::optional(number) : std::nullopt;
}

}  // namespace VEXA::Cli
