#include "vexa/util/NumberFormat.h"

#include <algorithm>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

constexpr std::u32string_view kGrouping = U"th:";
constexpr std::u32string_view kDecimal = U"dec:";
constexpr std::u32string_view kMinus = U"sign:";

constexpr int kMisplacedSetting = 34060;
constexpr int kTooLong = 34061;

std::u32string_view trimmed(std::u32string_view text) noexcept {
    while (!text.empty() && String::isSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && String::isSpace(text.back())) text.remove_suffix(1);
    return text;
}

/// What stands before the marker; all of the text without it.
std::u32string_view before(std::u32string_view text, std::u32string_view marker) noexcept {
    return text.substr(0, text.find(marker));
}

/// What stands behind the marker; nothing without it.
std::u32string_view behind(std::u32string_view text, std::u32string_view marker) noexcept {
    const std::size_t at = text.find(marker);
    return at == text.npos ? std::u32string_view() : text.substr(at + marker.size());
}

/// The parts of a format, blanks cut off.
struct NumberSpec {
    explicit NumberSpec(std::u32string_view spec) noexcept
        : pattern(trimmed(before(spec, kGrouping))),
          decimal(trimmed(before(behind(spec, kDecimal), kMinus))),
          minus(trimmed(behind(spec, kMinus))) {
        const std::u32string_view rest = behind(spec, kGrouping);
        grouping = trimmed(before(rest, rest.find(kDecimal) == rest.npos ? kMinus : kDecimal));
    }

    bool isTooLong() const noexcept {
        return pattern.size() > Limits::kNumberPattern ||
               std::max({grouping.size(), decimal.size(), minus.size()}) > Limits::kNumberSeparator;
    }

    std::u32string_view pattern;
    std::u32string_view grouping;
    std::u32string_view decimal;
    std::u32string_view minus;
};

/// Whether a setting stands where it counts as a part of the pattern or of another setting.
bool hasMisplacedSetting(std::u32string_view spec) noexcept {
    const std::size_t grouping = spec.find(kGrouping);
    const std::size_t decimal = spec.find(kDecimal);
    const std::size_t minus = spec.find(kMinus);
    return grouping > std::min(decimal, minus) || (decimal != spec.npos && decimal > minus);
}

}  // namespace

DecimalFormat readNumberFormat(const String& spec) {
    const NumberSpec parts(spec.view());
    return DecimalFormat(parts.pattern, parts.decimal, parts.grouping, parts.minus);
}

void checkNumberFormat(const String& spec, SourcePlace place) {
    if (hasMisplacedSetting(spec.view())) Log::warning(kMisplacedSetting, {quoteForMessage(spec)}, place);
    if (!NumberSpec(spec.view()).isTooLong()) return;
    const auto pattern = static_cast<std::int64_t>(Limits::kNumberPattern);
    Log::warning(kTooLong, {pattern, static_cast<std::int64_t>(Limits::kNumberSeparator)}, place);
}

}  // namespace VEXA
