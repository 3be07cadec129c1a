#include "vexa/support/values/LengthText.h"

#include <algorithm>
#include <limits>

#include "vexa/support/core/Format.h"

namespace VEXA {

namespace {

struct UnitName {
    std::string_view text;
    LengthUnit unit;
};
constexpr UnitName kUnitNames[] = {
    {"px", LengthUnit::Px}, {"pt", LengthUnit::Pt}, {"pc", LengthUnit::Pc},
    {"mm", LengthUnit::Mm}, {"cm", LengthUnit::Cm}, {"in", LengthUnit::In},
};

}  // namespace

bool readLength(TextScanner& scanner, Length& out) noexcept {
    float number = 0;
    if (!scanner.readNumber(number)) return false;
    const std::string_view name = scanner.readLetters();
    if (name.empty()) {
        out = Length(number);
        return true;
    }
    const auto* const row = std::ranges::find(kUnitNames, name, &UnitName::text);
    if (row == std::end(kUnitNames)) return false;
    out = Length(number, row->unit);
    return true;
}

bool readPercent(TextScanner& scanner, float& out) noexcept {
    constexpr double kMax = std::numeric_limits<float>::max();
    double number = 0;
    if (!scanner.readNumber(number) || !scanner.skip('%')) return false;
    const double fraction = number / 100.0;
    if (fraction < -kMax || fraction > kMax) return false;
    out = static_cast<float>(fraction);
    return true;
}

bool readLengthOrPercent(TextScanner& scanner, LengthOrPercent& out) noexcept {
    const TextScanner start = scanner;
    Length length;
    if (readLength(scanner, length) && !scanner.isNext('%')) {
        out = LengthOrPercent(length);
        return true;
    }
    scanner = start;
    float fraction = 0;
    if (!readPercent(scanner, fraction)) return false;
    out = LengthOrPercent::percent(fraction);
    return true;
}

void appendLength(const Length& length, std::string& out) {
    Format::appendShortest(length.getNumber(), out);
    if (length.getUnit() == LengthUnit::Px) return;
    const auto* const row = std::ranges::find(kUnitNames, length.getUnit(), &UnitName::unit);
    if (row != std::end(kUnitNames)) out += row->text;
}

void appendPercent(float fraction, std::string& out) {
    const double percent = static_cast<double>(fraction) * 100.0;
    std::string text;
    for (int digits = 1; digits <= std::numeric_limits<float>::max_digits10; ++digits) {
        text.clear();
        appendNumber(percent, digits, text);
        text += '%';
        TextScanner scanner(text);
        float read = 0;
        if (readPercent(scanner, read) && read == fraction) break;
    }
    out += text;
}

void appendLengthOrPercent(const LengthOrPercent& value, std::string& out) {
    if (value.isPercent()) {
        appendPercent(value.getPercent(), out);
    } else {
        appendLength(value.getLength(), out);
    }
}

}  // namespace VEXA
