#pragma once

#include <cstdint>
#include <string>

#include "vexa/support/core/SmartPtr.h"

namespace VEXA {

/// A colour without transparency; opacity belongs to brushes and stops.
class Color : public Object {
public:
    std::uint8_t red() const noexcept { return red_; }
    std::uint8_t green() const noexcept { return green_; }
    std::uint8_t blue() const noexcept { return blue_; }
    /// 0xRRGGBB.
    std::uint32_t rgb() const noexcept;
    friend bool operator==(const Color& a, const Color& b) noexcept { return a.rgb() == b.rgb(); }

    /// A new colour nearer to white: every component v becomes v + (255 - v)(1 - amount), rounded to nearest and cut to
    /// 0 to 255. Amount 1 changes nothing. No colour gives no colour.
    static SmartPtr<Color> getLighter(const SmartPtr<Color>& color, float amount);
    /// A new colour nearer to black: every component is multiplied by `amount`.
    static SmartPtr<Color> getDarker(const SmartPtr<Color>& color, float amount);

    /// Appends `#rrggbb` of 0xRRGGBB.
    static void appendHex(std::uint32_t rgb, std::string& out);

protected:
    constexpr Color(std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept
        : red_(red), green_(green), blue_(blue) {}
    constexpr Color(ImmortalTag tag, std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept
        : Object(tag), red_(red), green_(green), blue_(blue) {}

private:
    std::uint8_t red_;
    std::uint8_t green_;
    std::uint8_t blue_;
};

class RGBColor final : public Color {
public:
    constexpr RGBColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept : Color(red, green, blue) {}

    /// A colour for static storage, shared by all threads: `constinit Immortal<RGBColor::Shared> black(0, 0, 0)`.
    struct Shared;
};

struct RGBColor::Shared final : Color {
    constexpr Shared(std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept
        : Color(ImmortalTag(), red, green, blue) {}
};

}  // namespace VEXA
