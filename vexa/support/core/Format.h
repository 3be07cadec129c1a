#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace VEXA {

/// Numbers from and to text, never by the locale.
class Format {
public:
    /// The whole text as a decimal integer, an optional sign in front; nothing when it is something else or too large.
    static std::optional<std::int32_t> parseInt(std::string_view text) noexcept;
    /// The whole text as a finite decimal number (`1`, `-.5`, `+2.5e3`); no hexadecimal, no inf, no nan.
    static std::optional<double> parseDouble(std::string_view text) noexcept;
    /// As parseDouble, and finite in single precision (an underflow is 0).
    static std::optional<float> parseFloat(std::string_view text) noexcept;

    /// Reads a number as parseDouble and parseFloat do at the front of [begin, end). Returns where it ends; null when
    /// there is none, and `out` is left alone then.
    static const char* readNumber(const char* begin, const char* end, double& out) noexcept;
    static const char* readNumber(const char* begin, const char* end, float& out) noexcept;

    /// Whether numbers of this size are written without an exponent: 0 and 1e-5 <= |v| < 1e15. A float is compared in
    /// its own precision, so that 0.00001F, which is a little less than 0.00001, counts as that.
    static bool isPlain(double value) noexcept;
    static bool isPlain(float value) noexcept;

    /// The shortest decimal that reads back as the same float: no exponent for 1e-5 <= |v| < 1e15, never "-0";
    /// what is not finite is written as 0.
    static void appendShortest(float value, std::string& out);
    /// Rounded to two decimals without trailing zeros, never "-0", written as an integer of a hundredth. Values beyond
    /// ±1e9 are cut to it; NaN is 0.
    static void appendHundredths(float value, std::string& out);
    /// What a person expects: integers exactly, others with at most 6 significant digits and no trailing zeros; no
    /// exponent for 1e-5 <= |v| < 1e15, never "-0". What is not finite is written as NaN, Infinity or -Infinity.
    static std::string number(double value);
};

}  // namespace VEXA
