#include "vexa/support/xml/XmlDecimalNumberFormatter.h"

#include <string>

#include "vexa/support/xml/DecimalFormat.h"

namespace VEXA {

const XmlDecimalNumberFormatter& XmlDecimalNumberFormatter::get() noexcept {
    static constexpr XmlDecimalNumberFormatter formatter;
    return formatter;
}

String XmlDecimalNumberFormatter::formatFloat(float value, const String& pattern, const String& decimalSeparator,
                                              const String& groupingSeparator, const String& minusSign) const {
    std::u32string text;
    DecimalFormat(pattern.view(), decimalSeparator.view(), groupingSeparator.view(), minusSign.view())
        .append(value, text);
    return String(text);
}

}  // namespace VEXA
