#include "vexa/support/values/Length.h"

#include <algorithm>
#include <limits>

#include "vexa/support/values/LengthText.h"

namespace VEXA {

namespace {

// CSS Values and Units, absolute lengths: an inch is 96 px, 72 pt, 6 pc, 25.4 mm or 2.54 cm.
constexpr double kPxPerInch = 96.0;

double pxPerUnit(LengthUnit unit) noexcept {
    switch (unit) {
        case LengthUnit::Px:
            break;
        case LengthUnit::Pt:
            return kPxPerInch / 72.0;
        case LengthUnit::Pc:
            return kPxPerInch / 6.0;
        case LengthUnit::Mm:
            return kPxPerInch / 25.4;
        case LengthUnit::Cm:
            return kPxPerInch / 2.54;
        case LengthUnit::In:
            return kPxPerInch;
    }
    return 1.0;
}

float saturated(double px) noexcept {
    constexpr double kMax = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(px, -kMax, kMax));
}

/// Reads the whole of `text` with one of the readers of lengths.
template <class T>
bool parseWith(bool (*read)(TextScanner&, T&) noexcept, std::string_view text, T& out) noexcept {
    TextScanner scanner(text);
    scanner.skipSpace();
    return read(scanner, out) && scanner.isBlankToEnd();
}

std::string printLength(const Length& value) {
    std::string result;
    appendLength(value, result);
    return result;
}

std::string printLengthOrPercent(const LengthOrPercent& value) {
    std::string result;
    appendLengthOrPercent(value, result);
    return result;
}

bool readDash(TextScanner& scanner, SLength& out) noexcept {
    Length length;
    if (!readLength(scanner, length) || length.getNumber() < 0) return false;
    out = SLength(length.getNumber(), length.getUnit());
    return true;
}

}  // namespace

float Length::pxSize() const noexcept {
    return unit_ == LengthUnit::Px ? value_ : saturated(static_cast<double>(value_) * pxPerUnit(unit_));
}

float LengthOrPercent::pxSize(float reference) const noexcept {
    return isPercent_ ? saturated(static_cast<double>(length_.getNumber()) * reference) : length_.pxSize();
}

bool ValueTraits<Length>::parse(std::string_view text, Length& out) { return parseWith(readLength, text, out); }
std::string ValueTraits<Length>::print(const Length& value) { return printLength(value); }
std::string_view ValueTraits<Length>::expectation() noexcept { return kLengthExpectation; }
std::string_view ValueTraits<Length>::name() noexcept { return "Length"; }

bool ValueTraits<SLength>::parse(std::string_view text, SLength& out) {
    Length length;
    if (!parseWith(readLength, text, length)) return false;
    out = SLength(length.getNumber(), length.getUnit());
    return true;
}
std::string ValueTraits<SLength>::print(const SLength& value) { return printLength(value); }
std::string_view ValueTraits<SLength>::expectation() noexcept { return kLengthExpectation; }
std::string_view ValueTraits<SLength>::name() noexcept { return "SLength"; }

bool ValueTraits<SNullableLength>::parse(std::string_view text, SNullableLength& out) {
    SLength length;
    if (!ValueTraits<SLength>::parse(text, length)) return false;
    out = SNullableLength(length);
    return true;
}
std::string ValueTraits<SNullableLength>::print(const SNullableLength& value) {
    return value.isNull() ? std::string() : printLength(value.getLength());
}
std::string_view ValueTraits<SNullableLength>::expectation() noexcept { return kLengthExpectation; }
std::string_view ValueTraits<SNullableLength>::name() noexcept { return "SNullableLength"; }

bool ValueTraits<LengthOrPercent>::parse(std::string_view text, LengthOrPercent& out) {
    return parseWith(readLengthOrPercent, text, out);
}
std::string ValueTraits<LengthOrPercent>::print(const LengthOrPercent& value) { return printLengthOrPercent(value); }
std::string_view ValueTraits<LengthOrPercent>::expectation() noexcept { return kLengthOrPercentExpectation; }
std::string_view ValueTraits<LengthOrPercent>::name() noexcept { return "LengthOrPercent"; }

bool ValueTraits<SLengthOrPercent>::parse(std::string_view text, SLengthOrPercent& out) {
    LengthOrPercent value;
    if (!parseWith(readLengthOrPercent, text, value)) return false;
    out = SLengthOrPercent(value);
    return true;
}
std::string ValueTraits<SLengthOrPercent>::print(const SLengthOrPercent& value) { return printLengthOrPercent(value); }
std::string_view ValueTraits<SLengthOrPercent>::expectation() noexcept { return kLengthOrPercentExpectation; }
std::string_view ValueTraits<SLengthOrPercent>::name() noexcept { return "SLengthOrPercent"; }

bool ValueTraits<FloatOrPercent>::parse(std::string_view text, FloatOrPercent& out) {
    const bool isPercent = TextScanner::trim(text).ends_with('%');
    float number = 0;
    if (isPercent ? !parseWith(readPercent, text, number) : !ValueTraits<float>::parse(text, number)) return false;
    out = FloatOrPercent(number, isPercent);
    return true;
}
std::string ValueTraits<FloatOrPercent>::print(const FloatOrPercent& value) {
    if (!value.isPercent()) return ValueTraits<float>::print(value.getValue());
    std::string result;
    appendPercent(value.getValue(), result);
    return result;
}
std::string_view ValueTraits<FloatOrPercent>::expectation() noexcept {
    return "a number or a percentage (write 0.5 or 50%)";
}
std::string_view ValueTraits<FloatOrPercent>::name() noexcept { return "FloatOrPercent"; }

bool ValueTraits<Vector<SLength>>::parse(std::string_view text, Vector<SLength>& out) {
    out.clear();
    const std::string_view list = TextScanner::trim(text);
    if (list.empty() || list == "none") return true;
    TextScanner scanner(list);
    do {
        if (!readDash(scanner, out.emplace_back())) return false;
        if (scanner.isAtEnd()) return true;
    } while (scanner.skipSeparator());
    return false;
}
std::string ValueTraits<Vector<SLength>>::print(const Vector<SLength>& value) {
    std::string result;
    for (const SLength& entry : value) {
        if (!result.empty()) result += ' ';
        appendLength(entry, result);
    }
    return result.empty() ? "none" : result;
}
std::string_view ValueTraits<Vector<SLength>>::expectation() noexcept {
    return "a dash pattern (write none, or lengths of dashes and gaps that are not negative, such as 5 3)";
}
std::string_view ValueTraits<Vector<SLength>>::name() noexcept { return "DashPattern"; }

}  // namespace VEXA
