#include "vexa/support/xml/XmlDecimalNumberFormatter.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "vexa/support/core/Decimal.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/xml/DecimalPattern.h"

namespace VEXA {

namespace {

std::u32string_view settingOr(const String& setting, std::u32string_view standard) noexcept {
    return setting.isEmpty() ? standard : setting.view().substr(0, Limits::kNumberSeparator);
}

/// The rounded digits of a number, laid out by a pattern.
class DigitWriter {
public:
    DigitWriter(const Decimal& number, const DecimalPattern& pattern) noexcept
        : digits_(number.digits()),
          point_(number.isZero() ? 0 : number.point() + pattern.percentShift),
          whole_(std::max({pattern.minIntegerDigits, point_, 0})),
          fraction_(std::max(pattern.minFractionDigits, static_cast<int>(digits_.size()) - point_)) {
        if (whole_ == 0 && fraction_ == 0) whole_ = 1;
    }

    void appendWhole(int groupSize, std::u32string_view separator, std::u32string& out) const {
        for (int place = whole_ - 1; place >= 0; --place) {
            out += digit(point_ - 1 - place);
            if (groupSize > 0 && place > 0 && place % groupSize == 0) out += separator;
        }
    }
    bool hasFraction() const noexcept { return fraction_ > 0; }
    void appendFraction(std::u32string& out) const {
        for (int place = 0; place < fraction_; ++place) out += digit(point_ + place);
    }

private:
    char32_t digit(int index) const noexcept {
        if (index < 0 || index >= static_cast<int>(digits_.size())) return U'0';
        return static_cast<char32_t>(digits_[static_cast<std::size_t>(index)]);
    }

    std::string_view digits_;
    int point_;     // digits before the decimal point
    int whole_;     // digits written before it
    int fraction_;  // digits written behind it
};

/// The number as its pattern shows it: rounded to the places, or to what its own text shows.
Decimal rounded(float value, const DecimalPattern& pattern) noexcept {
    constexpr int kOwnDigits = 6;
    Decimal decimal(value);
    if (pattern.hasDigits) {
        decimal.roundToPlaces(pattern.maxFractionDigits + pattern.percentShift);
    } else if (value != std::floor(value)) {
        decimal.roundToSignificant(kOwnDigits);
    }
    return decimal;
}

String inside(const DecimalPattern::Affixes& affixes, std::u32string_view number) {
    return String(affixes.prefix + std::u32string(number) + affixes.suffix);
}

}  // namespace

const XmlDecimalNumberFormatter& XmlDecimalNumberFormatter::get() noexcept {
    static constexpr XmlDecimalNumberFormatter formatter;
    return formatter;
}

String XmlDecimalNumberFormatter::formatFloat(float value, const String& pattern, const String& decimalSeparator,
                                              const String& groupingSeparator, const String& minusSign) const {
    if (std::isnan(value)) return "NaN";
    const DecimalPattern parsed =
        DecimalPattern::parse(pattern.view().substr(0, Limits::kNumberPattern), settingOr(minusSign, U"-"));
    if (std::isinf(value)) return inside(value < 0 ? parsed.negative : parsed.positive, U"Infinity");
    const Decimal decimal = rounded(value, parsed);
    const DigitWriter writer(decimal, parsed);
    std::u32string number;
    writer.appendWhole(parsed.groupSize, settingOr(groupingSeparator, U","), number);
    if (writer.hasFraction() || parsed.endsInPoint) number += settingOr(decimalSeparator, U".");
    writer.appendFraction(number);
    return inside(decimal.isNegative() ? parsed.negative : parsed.positive, number);
}

}  // namespace VEXA
