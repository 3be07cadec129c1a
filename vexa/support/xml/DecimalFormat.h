#pragma once

#include <string>
#include <string_view>

#include "vexa/support/xml/DecimalPattern.h"

namespace VEXA {

/// A number pattern with its separators, read once to write many numbers. XmlDecimalNumberFormatter tells the rules.
class DecimalFormat {
public:
    /// The format keeps no reference to the texts.
    explicit DecimalFormat(std::u32string_view pattern, std::u32string_view decimalSeparator = {},
                           std::u32string_view groupingSeparator = {}, std::u32string_view minusSign = {});

    /// Writes the number behind what `out` has.
    void append(float value, std::u32string& out) const;

private:
    DecimalPattern pattern_;
    std::u32string decimalSeparator_;
    std::u32string groupingSeparator_;
};

}  // namespace VEXA
