#include "vexa/support/drawing/Color.h"

#include <gtest/gtest.h>

#include <limits>

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

SmartPtr<Color> colorOf(std::uint32_t rgb) {
    return make<RGBColor>(static_cast<std::uint8_t>(rgb >> 16U), static_cast<std::uint8_t>(rgb >> 8U),
                          static_cast<std::uint8_t>(rgb));
}

constinit Immortal<RGBColor::Shared> sharedColor(1, 2, 3);

TEST(Color, ShadesAreRoundedAndCut) {
    struct Case {
        std::uint32_t color;
        float amount;
        std::uint32_t lighter;
        std::uint32_t darker;
        const char* why;
    };
    const Case cases[] = {
        {0x4572A7, 1.0F, 0x4572A7, 0x4572A7, "1 changes nothing"},
        // lighter: 69 + 186 x 0.2 = 106.2, 114 + 141 x 0.2 = 142.2, 167 + 88 x 0.2 = 184.6; darker: 55.2, 91.2, 133.6
        {0x4572A7, 0.8F, 0x6A8EB9, 0x375B86, "each component on its own, to the nearest"},
        // lighter: 127.5, 252.5, 255; darker: 0, 125, 127.5
        {0x00FAFF, 0.5F, 0x80FDFF, 0x007D80, "halves go up; white stays white when lighter"},
        {0x8040C0, 3.0F, 0x000042, 0xFFC0FF, "above 1 the other way, cut at black and white"},
        {0x8040C0, -1.0F, 0xFFFFFF, 0x000000, "below 0 cut as well"},
        {0x8040C0, kNaN, 0x8040C0, 0x8040C0, "no number changes nothing"},
        {0xFF8000, kInfinity, 0xFF0000, 0xFFFF00, "255 stays when lighter, 0 stays when darker"},
        {0xFF8000, -kInfinity, 0xFFFFFF, 0x000000, "below all bounds"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Color::getLighter(colorOf(c.color), c.amount)->rgb(), c.lighter) << c.why;
        EXPECT_EQ(Color::getDarker(colorOf(c.color), c.amount)->rgb(), c.darker) << c.why;
    }
    EXPECT_TRUE(Color::getLighter(nullptr, 0.5F).isEmpty() && Color::getDarker(nullptr, 0.5F).isEmpty());
    const SmartPtr<Color> color = colorOf(0x4572A7);
    EXPECT_NE(Color::getDarker(color, 1).get(), color.get()) << "a caller may compare or count references";
    EXPECT_TRUE(sharedColor.value.isImmortal()) << "threads do not fight over its count";
    EXPECT_EQ(*colorOf(0x010203), sharedColor.value) << "colours are equal by what they look like";
}

}  // namespace
}  // namespace VEXA
