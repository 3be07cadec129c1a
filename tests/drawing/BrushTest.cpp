#include "vexa/support/drawing/Brush.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "vexa/support/drawing/Color.h"
#include "vexa/support/drawing/Stroke.h"

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
    const std::tuple<std::uint32_t, float, std::uint32_t, std::uint32_t, const char*> cases[] = {
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
    for (const auto& [color, amount, lighter, darker, why] : cases) {
        EXPECT_EQ(Color::getLighter(colorOf(color), amount)->rgb(), lighter) << why;
        EXPECT_EQ(Color::getDarker(colorOf(color), amount)->rgb(), darker) << why;
    }
    EXPECT_TRUE(Color::getLighter(nullptr, 0.5F).isEmpty() && Color::getDarker(nullptr, 0.5F).isEmpty());
    const SmartPtr<Color> color = colorOf(0x4572A7);
    EXPECT_NE(Color::getDarker(color, 1).get(), color.get()) << "a caller may compare or count references";
    EXPECT_TRUE(sharedColor.value.isImmortal()) << "threads do not fight over its count";
    EXPECT_EQ(*colorOf(0x010203), sharedColor.value) << "colours are equal by what they look like";
}

SmartPtr<Color> red() { return make<RGBColor>(255, 0, 0); }

TEST(Brush, ACloneHasTheSameLookAndALifeOfItsOwn) {
    const SmartPtr<LinearGradientBrush> original =
        make<LinearGradientBrush>(1.0F, 2.0F, 3.0F, 4.0F, GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Repeat);
    original->addStop(0.25F, red(), 0.5F);
    original->addMatrixTransform(2, 0, 0, 2, 0, 0);
    original->setOpacity(0.75F);
    const SmartPtr<Brush> clone = original->clone();
    original->setOpacity(0.1F);
    original->addStop(1, red(), 1);
    original->addMatrixTransform(1, 0, 0, 1, 7, 7);

    const auto& copy = static_cast<const LinearGradientBrush&>(*clone);
    EXPECT_EQ(copy.start(), (PointF{1, 2}));
    EXPECT_EQ(copy.end(), (PointF{3, 4}));
    EXPECT_EQ(copy.getUnits(), GradientUnits::UserSpaceOnUse);
    EXPECT_EQ(copy.getSpreadMethod(), GradientSpreadMethod::Repeat);
    EXPECT_EQ(copy.getMatrix(), Matrix(2, 0, 0, 2, 0, 0));
    EXPECT_EQ(copy.getOpacity(), 0.75F);
    EXPECT_EQ(copy.getStops().size(), 1U);
    EXPECT_EQ(original->getMatrix(), Matrix(2, 0, 0, 2, 14, 14)) << "the earlier scale enlarges the later translation";

    EXPECT_EQ(make<SolidColorBrush>(red(), 0.5F)->clone()->getOpacity(), 0.5F);
    const SmartPtr<Brush> radial =
        make<RadialGradientBrush>(1.0F, 2.0F, 3.0F, 4.0F, GradientUnits(), GradientSpreadMethod())->clone();
    EXPECT_EQ(static_cast<const RadialGradientBrush&>(*radial).radii(), (SizeF{3, 4}));
}

TEST(Brush, PaintsWithAColorOnly) {
    EXPECT_TRUE(SolidColorBrush(red()).paints());
    EXPECT_FALSE(SolidColorBrush(nullptr).paints());
    RadialGradientBrush gradient(0, 0, 1, 1, GradientUnits(), GradientSpreadMethod());
    EXPECT_FALSE(gradient.paints()) << "no stops";
    gradient.addStop(0, nullptr, 1);
    EXPECT_FALSE(gradient.paints()) << "a stop without a colour";
    gradient.addStop(1, red(), 1);
    EXPECT_TRUE(gradient.paints());
}

TEST(Stroke, PaintsWithABrushOfItsOwnAndAThickness) {
    const SmartPtr<Brush> shared = make<SolidColorBrush>(red());
    Stroke stroke(shared, 0.001F);
    EXPECT_TRUE(stroke.paints());
    stroke.setOpacity(0.5F);
    EXPECT_EQ(shared->getOpacity(), 1.0F) << "others still paint with it";
    EXPECT_EQ(stroke.getBrush()->getOpacity(), 0.5F);
    Stroke(nullptr, 2).setOpacity(0.5F);
    for (const float thickness : {0.0F, -1.0F, kNaN, kInfinity}) {
        EXPECT_FALSE(Stroke(shared, thickness).paints()) << thickness;
    }
    EXPECT_FALSE(Stroke(nullptr, 1).paints());
    EXPECT_FALSE(Stroke(make<SolidColorBrush>(nullptr), 1).paints());
}

TEST(Stroke, IsDashedWhenTheLengthsSaySomething) {
    const auto isDashed = [](const Vector<float>& lengths) {
        Stroke stroke(nullptr, 1);
        stroke.setDashArray(lengths);
        return stroke.isDashed();
    };
    EXPECT_TRUE(isDashed({5})) << "one is as long as its gap";
    EXPECT_TRUE(isDashed({0, 4})) << "dots";
    EXPECT_TRUE(isDashed({3e38F, 3e38F})) << "the sum may leave single precision";
    EXPECT_FALSE(isDashed({})) << "none";
    EXPECT_FALSE(isDashed({0, 0})) << "only gaps of no length";
    EXPECT_FALSE(isDashed({5, -1, 5})) << "a negative length spoils all";
    EXPECT_FALSE(isDashed({5, kInfinity})) << "as does an infinite one";
    EXPECT_FALSE(isDashed({kNaN})) << "and one that is no number";
}

}  // namespace
}  // namespace VEXA
