#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace VEXA {

/// A finite number as decimal digits: 0.d1d2d3… times ten to the power of `point`. Made from the shortest decimal that
/// reads back as the same number, so that rounding works on what a person would write (0.15, not 0.1499999…).
class Decimal {
public:
    /// REQUIRES: value is finite.
    explicit Decimal(double value) noexcept;
    explicit Decimal(float value) noexcept;

    bool isZero() const noexcept { return count_ == 0; }
    bool isNegative() const noexcept { return negative_; }
    /// Without leading or trailing zeros; empty for zero.
    std::string_view digits() const noexcept { return {digits_, count_}; }
    /// Digits before the decimal point; zero or negative when the number starts behind it.
    int point() const noexcept { return point_; }

    /// Keeps so many digits from the first one on, or so many behind the decimal point; half is rounded away from zero.
    void roundToSignificant(int count) noexcept;
    void roundToPlaces(int places) noexcept;

    /// Without exponent: -0.5, 1200.
    void appendFixed(std::string& out) const;
    /// With one: 1.2e+20.
    void appendScientific(std::string& out) const;

private:
    static constexpr std::size_t kMaxDigits = 17;  // what a double needs at most

    template <class T>
    void read(T value) noexcept;
    void clear() noexcept;
    void dropTrailingZeros() noexcept;
    void increment() noexcept;

    char digits_[kMaxDigits] = {};
    std::size_t count_ = 0;
    int point_ = 0;
    bool negative_ = false;
};

}  // namespace VEXA
