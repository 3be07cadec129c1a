#include "vexa/support/xml/DecimalFormat.h"

#include <algorithm>
#include <cmath>

#include "vexa/support/core/Decimal.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

constexpr std::u32string_view kPoint = U".";
constexpr std::u32string_view kComma = U",";

std::u32string_view settingOr(std::u32string_view setting, std::u32string_view standard) noexcept {
    return setting.empty() ? standard : setting.substr(0, Limits::kNumberSeparator);
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

}  // namespace

DecimalFormat::DecimalFormat(std::u32string_view pattern, std::u32string_view decimalSeparator,
                             std::u32string_view groupingSeparator, std::u32string_view minusSign)
    : pattern_(DecimalPattern::parse(pattern.substr(0, Limits::kNumberPattern), settingOr(minusSign, U"-"))),
      decimalSeparator_(settingOr(decimalSeparator, groupingSeparator == kPoint ? kComma : kPoint)),
      groupingSeparator_(settingOr(groupingSeparator, decimalSeparator == kComma ? kPoint : kComma)) {}

void DecimalFormat::append(float value, std::u32string& out) const {
    if (std::isnan(value)) {
        out += U"NaN";
        return;
    }
    if (std::isinf(value)) {
        const DecimalPattern::Affixes& around = value < 0 ? pattern_.negative : pattern_.positive;
        out.append(around.prefix).append(U"Infinity").append(around.suffix);
        return;
    }
    const Decimal decimal = rounded(value, pattern_);
    const DigitWriter writer(decimal, pattern_);
    const DecimalPattern::Affixes& around = decimal.isNegative() ? pattern_.negative : pattern_.positive;
    out += around.prefix;
    writer.appendWhole(pattern_.groupSize, groupingSeparator_, out);
    if (writer.hasFraction() || pattern_.endsInPoint) out += decimalSeparator_;
    writer.appendFraction(out);
    out += around.suffix;
}

}  // namespace VEXA
