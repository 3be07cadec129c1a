#pragma once

#include <string>
#include <string_view>

namespace VEXA {

/// A number pattern such as `#,##0.00;(#,##0.00)`, read. Any text is a pattern; what has no meaning in its place is
/// literal.
struct DecimalPattern {
    /// What stands around the digits, signs included.
    struct Affixes {
        std::u32string prefix;
        std::u32string suffix;
        friend bool operator==(const Affixes&, const Affixes&) = default;
    };

    Affixes positive;
    Affixes negative;
    int minIntegerDigits = 0;
    int minFractionDigits = 0;
    int maxFractionDigits = 0;
    int groupSize = 0;         ///< digits between grouping separators; 0 for none
    int percentShift = 0;      ///< 2 for percent, 3 for per mille
    bool hasDigits = false;    ///< false without any place for a digit
    bool endsInPoint = false;  ///< the decimal separator is written without digits behind it too

    /// `minus` stands for every unquoted hyphen around the digits.
    static DecimalPattern parse(std::u32string_view pattern, std::u32string_view minus);
};

}  // namespace VEXA
