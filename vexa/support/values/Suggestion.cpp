#include "vexa/support/values/Suggestion.h"

#include <algorithm>
#include <array>
#include <span>

#include "vexa/support/core/DateTimeEx.h"
#include "vexa/support/core/Format.h"
#include "vexa/support/core/NearestName.h"
#include "vexa/support/values/ColorText.h"
#include "vexa/support/values/Enumerations.h"
#include "vexa/support/values/TextScanner.h"

namespace VEXA {

namespace {

constexpr std::size_t kLongestText = 64;  // no value that can be guessed comes near
constexpr std::string_view kUnitNames[] = {"automatic", "days", "months", "years"};

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

std::span<const std::string_view> namesOf(std::string_view typeName) {
    if (typeName.ends_with("Color")) return colorNames();
    if (typeName == "AxisUnits") return kUnitNames;
    return findKeywords(typeName);
}

/// Without blanks and in lower case.
std::string compact(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (TextScanner::isSpace(c)) continue;
        result += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return result;
}

/// A single comma is the decimal one, unless three digits behind it say that it separates thousands.
std::string withoutCommas(std::string text) {
    const std::size_t comma = text.find(',');
    if (comma == std::string::npos) return text;
    const std::size_t digits = static_cast<std::size_t>(
        std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(comma) + 1, text.end(), isDigit) - text.begin() -
        static_cast<std::ptrdiff_t>(comma) - 1);
    const bool isDecimal =
        digits != 3 && text.find(',', comma + 1) == std::string::npos && text.find('.') == std::string::npos;
    if (isDecimal) {
        text[comma] = '.';
    } else {
        std::erase(text, ',');
    }
    return text;
}

/// Three numbers with the same mark between them.
struct DateParts {
    std::array<int, 3> numbers{};
    std::array<std::size_t, 3> digits{};

    bool read(std::string_view text, char mark) {
        std::size_t at = 0;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            if (i > 0 && (at == text.size() || text[at++] != mark)) return false;
            for (; at < text.size() && isDigit(text[at]) && digits[i] < 4; ++at, ++digits[i])
                numbers[i] = numbers[i] * 10 + (text[at] - '0');
            if (digits[i] == 0) return false;
        }
        return at == text.size();
    }
};

std::string isoDate(int year, int month, int day) {
    return DateTimeEx::isValid(year, month, day) ? DateTimeEx(year, month, day).toString() : std::string();
}

/// The opaque colour of "rgba(r,g,b,a)"; other texts as they are.
std::string withoutAlpha(const std::string& text) {
    const std::size_t last = text.rfind(',');
    if (!text.starts_with("rgba(") || last == std::string::npos) return text;
    return "rgb(" + text.substr(5, last - 5) + ")";
}

}  // namespace

std::string suggestValue(std::string_view text, std::string_view typeName, bool (*reads)(std::string_view)) {
    if (text.size() > kLongestText) return {};
    const std::string plain = compact(text);
    for (const std::string& guess : {plain, withoutCommas(plain), "#" + plain, withoutAlpha(plain)}) {
        if (reads(guess)) return guess;
    }
    return std::string(nearestName(plain, namesOf(typeName)));
}

std::string suggestDate(std::string_view text) {
    const std::string_view word = TextScanner::trim(text);
    for (const char mark : {'.', '/', '-'}) {
        DateParts parts;
        if (!parts.read(word, mark)) continue;
        const auto [first, second, third] = parts.numbers;
        if (parts.digits[0] == 4) return isoDate(first, second, third);
        if (parts.digits[2] != 4) return {};
        const std::string dayFirst = isoDate(third, second, first);
        return dayFirst.empty() ? isoDate(third, first, second) : dayFirst;
    }
    return {};
}

std::string suggestNumber(std::string_view text) {
    if (text.size() > kLongestText) return {};
    std::string plain = withoutCommas(compact(text));
    if (plain.ends_with('%')) plain.pop_back();
    return Format::parseDouble(plain) ? plain : std::string();
}

}  // namespace VEXA
