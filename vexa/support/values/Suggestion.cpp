#include "vexa/support/values/Suggestion.h"

#include <span>

#include "vexa/support/core/NearestName.h"
#include "vexa/support/values/ColorText.h"
#include "vexa/support/values/Enumerations.h"
#include "vexa/support/values/LocalForms.h"
#include "vexa/support/values/TextScanner.h"

namespace VEXA {

namespace {

constexpr std::size_t kLongestText = 64;  // no value that can be guessed comes near
constexpr std::string_view kUnitNames[] = {"automatic", "days", "months", "years"};

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

/// The opaque colour of "rgba(r,g,b,a)", "#rrggbbaa" or "#rgba"; other texts as they are.
std::string withoutAlpha(const std::string& text) {
    if (text.starts_with('#') && (text.size() == 9 || text.size() == 5))
        return text.substr(0, (text.size() - 1) / 4 * 3 + 1);
    const std::size_t last = text.rfind(',');
    if (!text.starts_with("rgba(") || last == std::string::npos) return text;
    return "rgb(" + text.substr(5, last - 5) + ")";
}

}  // namespace

std::string suggestValue(std::string_view text, std::string_view typeName, bool (*reads)(std::string_view)) {
    if (text.size() > kLongestText) return {};
    const std::string plain = compact(text);
    for (const std::string& guess : {plain, withDecimalPoint(plain), "#" + plain, withoutAlpha(plain)}) {
        if (reads(guess)) return guess;
    }
    return std::string(nearestName(plain, namesOf(typeName)));
}

}  // namespace VEXA
