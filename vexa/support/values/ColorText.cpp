#include "vexa/support/values/ColorText.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "vexa/support/values/TextScanner.h"

namespace VEXA {

namespace {

constexpr std::uint32_t packed(std::uint32_t red, std::uint32_t green, std::uint32_t blue) noexcept {
    return red << 16 | green << 8 | blue;
}

int hexDigit(char c) noexcept {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

/// The digits behind the #.
std::optional<std::uint32_t> parseHex(std::string_view digits) noexcept {
    if (digits.size() != 3 && digits.size() != 6) return std::nullopt;
    std::uint32_t value = 0;
    for (const char c : digits) {
        const int digit = hexDigit(c);
        if (digit < 0) return std::nullopt;
        value = value << 4 | static_cast<std::uint32_t>(digit);
    }
    if (digits.size() == 6) return value;
    return packed((value >> 8) * 0x11, (value >> 4 & 0xF) * 0x11, (value & 0xF) * 0x11);
}

/// One component of rgb(): a number to 255 or a percentage, the same for all three.
struct Component {
    double number = 0;
    bool isPercent = false;

    bool read(TextScanner& scanner) noexcept {
        if (!scanner.readNumber(number)) return false;
        isPercent = scanner.skip('%');
        return true;
    }
    std::uint32_t value() const noexcept {
        const double scaled = isPercent ? number * 255.0 / 100.0 : number;
        return static_cast<std::uint32_t>(std::round(std::clamp(scaled, 0.0, 255.0)));
    }
};

/// What follows `rgb(`: commas between all components, or white space alone between all.
std::optional<std::uint32_t> parseComponents(TextScanner scanner) noexcept {
    std::array<Component, 3> parts;
    std::array<bool, 3> commas{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const bool spaced = scanner.skipSpace();
        commas[i] = i > 0 && scanner.skip(',');
        if (i > 0 && !commas[i] && !spaced) return std::nullopt;
        scanner.skipSpace();
        if (!parts[i].read(scanner) || parts[i].isPercent != parts[0].isPercent) return std::nullopt;
    }
    scanner.skipSpace();
    if (commas[1] != commas[2] || !scanner.skip(')') || !scanner.isBlankToEnd()) return std::nullopt;
    return packed(parts[0].value(), parts[1].value(), parts[2].value());
}

}  // namespace

std::optional<std::uint32_t> parseColor(std::string_view text) noexcept {
    const std::string_view word = TextScanner::trim(text);
    if (word.starts_with('#')) return parseHex(word.substr(1));
    TextScanner scanner(word);
    if (scanner.skipWord("rgb(")) return parseComponents(scanner);
    return findColorName(word);
}

SmartPtr<Color> makeColor(std::uint32_t rgb) {
    const auto component = [rgb](int shift) { return static_cast<std::uint8_t>(rgb >> shift & 0xFF); };
    return make<RGBColor>(component(16), component(8), component(0));
}

}  // namespace VEXA
