#include "vexa/support/values/ValueTraits.h"

#include "vexa/support/core/Format.h"
#include "vexa/support/values/ColorText.h"
#include "vexa/support/values/TextScanner.h"

namespace VEXA {

bool ValueTraits<bool>::parse(std::string_view text, bool& out) {
    const std::string_view word = TextScanner::trim(text);
    out = word == "true";
    return out || word == "false";
}
std::string ValueTraits<bool>::print(const bool& value) { return value ? "true" : "false"; }
std::string_view ValueTraits<bool>::expectation() noexcept { return "true or false"; }
std::string_view ValueTraits<bool>::name() noexcept { return "bool"; }

bool ValueTraits<float>::parse(std::string_view text, float& out) {
    TextScanner scanner(text);
    scanner.skipSpace();
    return scanner.readNumber(out) && scanner.isBlankToEnd();
}
std::string ValueTraits<float>::print(const float& value) {
    std::string result;
    Format::appendShortest(value, result);
    return result;
}
std::string_view ValueTraits<float>::expectation() noexcept {
    return "a number (write digits alone, with a point for the decimals)";
}
std::string_view ValueTraits<float>::name() noexcept { return "float"; }

bool ValueTraits<String>::parse(std::string_view text, String& out) {
    out = String(text);
    return true;
}
std::string ValueTraits<String>::print(const String& value) { return value.toUtf8(); }
std::string_view ValueTraits<String>::expectation() noexcept { return "a text"; }
std::string_view ValueTraits<String>::name() noexcept { return "String"; }

bool ValueTraits<SmartPtr<Color>>::parse(std::string_view text, SmartPtr<Color>& out) {
    const auto rgb = parseColor(text);
    if (!rgb) return false;
    out = makeColor(*rgb);
    return true;
}
std::string ValueTraits<SmartPtr<Color>>::print(const SmartPtr<Color>& value) {
    std::string result;
    if (value) Color::appendHex(value->rgb(), result);
    return result;
}
std::string_view ValueTraits<SmartPtr<Color>>::expectation() noexcept {
    return "a colour (write #rgb, #rrggbb, rgb(r, g, b) or a CSS colour name)";
}
std::string_view ValueTraits<SmartPtr<Color>>::name() noexcept { return "Color"; }

}  // namespace VEXA
