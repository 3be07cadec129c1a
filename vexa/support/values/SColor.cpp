#include "vexa/support/values/SColor.h"

#include "vexa/support/values/ColorText.h"
#include "vexa/support/values/TextScanner.h"

namespace VEXA {

namespace {

constexpr std::string_view kExpectation =
    "a paint (write none, url(#id), #rgb, #rrggbb, rgb(r, g, b) or a CSS colour name)";

bool isQuote(char c) noexcept { return c == '"' || c == '\''; }

/// The address behind `url(`: with or without quotes, white space around it; empty when it is none.
std::string_view parseUrl(TextScanner scanner) noexcept {
    const std::string_view inside = TextScanner::trim(scanner.readUntil(')'));
    if (!scanner.skip(')') || !scanner.isBlankToEnd() || inside.empty()) return {};
    std::string_view url = inside;
    if (isQuote(inside.front())) {
        if (inside.size() < 2 || inside.back() != inside.front()) return {};
        url = inside.substr(1, inside.size() - 2);
    }
    return url.find_first_of("\"' \t\n\r") == url.npos ? url : std::string_view();
}

}  // namespace

SColor SColor::reference(String url) {
    SColor result = ofType(SColorType::Url);
    result.url_ = std::move(url);
    return result;
}

SColor SColor::ofType(SColorType type) {
    SColor result;
    result.type_ = type;
    return result;
}

bool ValueTraits<SColor>::parse(std::string_view text, SColor& out) {
    const std::string_view word = TextScanner::trim(text);
    TextScanner scanner(word);
    if (scanner.skipWord("url(")) {
        const std::string_view url = parseUrl(scanner);
        out = SColor::reference(String(url));
        return !url.empty();
    }
    if (scanner.skipWord("none") && scanner.isAtEnd()) {
        out = SColor();
        return true;
    }
    const auto rgb = parseColor(word);
    if (rgb) out = SColor(makeColor(*rgb));
    return rgb.has_value();
}

std::string ValueTraits<SColor>::print(const SColor& value) {
    if (value.getType() == SColorType::Url) return "url(" + value.getUrl().toUtf8() + ")";
    if (value.getType() == SColorType::None || !value.getColor()) return "none";
    std::string result;
    Color::appendHex(value.getColor()->rgb(), result);
    return result;
}

std::string_view ValueTraits<SColor>::expectation() noexcept { return kExpectation; }
std::string_view ValueTraits<SColor>::name() noexcept { return "SColor"; }

bool ValueTraits<SNullableColor>::parse(std::string_view text, SNullableColor& out) {
    SColor color;
    if (!ValueTraits<SColor>::parse(text, color)) return false;
    out = SNullableColor(std::move(color));
    return true;
}

std::string ValueTraits<SNullableColor>::print(const SNullableColor& value) {
    return value.isNull() ? std::string() : ValueTraits<SColor>::print(value.getSColor());
}

std::string_view ValueTraits<SNullableColor>::expectation() noexcept { return kExpectation; }
std::string_view ValueTraits<SNullableColor>::name() noexcept { return "SNullableColor"; }

}  // namespace VEXA
