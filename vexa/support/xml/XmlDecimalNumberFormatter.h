#pragma once

#include "vexa/support/core/String.h"

namespace VEXA {

/// Writes numbers by a pattern. In a pattern `0` is a digit, `#` a digit that leading or trailing zeros leave out, `.`
/// the decimal point, `,` groups the digits by its distance from the point, `%` and `‰` multiply by 100 and 1000, `;`
/// parts off what stands around a negative number, `-` is the minus sign, and quotes (') make all of these literal.
class XmlDecimalNumberFormatter {
public:
    /// The formatter of all callers; it has no state.
    static const XmlDecimalNumberFormatter& get() noexcept;

    /// Never fails and never depends on the locale. Empty settings mean `.`, `,` and `-`; an empty separator is the
    /// other one of `.` and `,` where the usual one has the other job already. Rounds half away from zero on the
    /// shortest decimal of the value: 0.15 by `0.0` is 0.2. What rounds to zero has no sign. A pattern without a place
    /// for digits is put in front of the number: six significant digits, all of an integer. Of an overlong pattern or
    /// setting only the start counts (Limits::kNumberPattern, kNumberSeparator).
    String formatFloat(float value, const String& pattern, const String& decimalSeparator = {},
                       const String& groupingSeparator = {}, const String& minusSign = {}) const;
};

}  // namespace VEXA
