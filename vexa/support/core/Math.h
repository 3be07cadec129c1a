#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace VEXA {

class Math {
public:
    /// π rounded to single precision and widened: all angles of a chart are made with it.
    static constexpr double kPi = 3.1415927410125732;

    static double floor(double value) noexcept { return std::floor(value); }

    /// The integer part, cut to the range of int; 0 for NaN.
    static std::int32_t toInt(double value) noexcept {
        if (std::isnan(value)) return 0;
        if (value >= 2147483647.0) return std::numeric_limits<std::int32_t>::max();
        if (value <= -2147483648.0) return std::numeric_limits<std::int32_t>::min();
        return static_cast<std::int32_t>(value);
    }

    /// In single precision, cut to the range of finite floats; NaN stays.
    static float toFloat(double value) noexcept {
        constexpr double largest = std::numeric_limits<float>::max();
        if (value > largest) return std::numeric_limits<float>::max();
        if (value < -largest) return std::numeric_limits<float>::lowest();
        return static_cast<float>(value);
    }
};

}  // namespace VEXA
