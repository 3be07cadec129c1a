#include "vexa/support/drawing/Brush.h"

#include <gtest/gtest.h>

#include <limits>

#include "vexa/support/drawing/Stroke.h"

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

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

    const SmartPtr<Brush> solid = make<SolidColorBrush>(red(), 0.5F)->clone();
    EXPECT_EQ(solid->getBrushType(), BrushType::SolidColor);
    EXPECT_EQ(solid->getOpacity(), 0.5F);
    const SmartPtr<Brush> radial =
        make<RadialGradientBrush>(1.0F, 2.0F, 3.0F, 4.0F, GradientUnits(), GradientSpreadMethod())->clone();
    EXPECT_TRUE(static_cast<const GradientBrush&>(*radial).isRadial());
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

TEST(Stroke, OpacityIsSetOnABrushOfItsOwn) {
    const SmartPtr<Brush> shared = make<SolidColorBrush>(red());
    Stroke stroke(shared, 2);
    stroke.setOpacity(0.5F);
    EXPECT_EQ(shared->getOpacity(), 1.0F) << "others still paint with it";
    EXPECT_EQ(stroke.getBrush()->getOpacity(), 0.5F);
    Stroke(nullptr, 2).setOpacity(0.5F);
}

TEST(Stroke, PaintsWithABrushAndAThickness) {
    EXPECT_TRUE(Stroke(make<SolidColorBrush>(red()), 0.001F).paints());
    for (const float thickness : {0.0F, -1.0F, kNaN, kInfinity}) {
        EXPECT_FALSE(Stroke(make<SolidColorBrush>(red()), thickness).paints()) << thickness;
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
