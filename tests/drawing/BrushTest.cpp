#include "vexa/support/drawing/Brush.h"

#include <gtest/gtest.h>

#include <limits>

#include "vexa/support/drawing/Stroke.h"

namespace VEXA {
namespace {

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
    ASSERT_EQ(copy.getStops().size(), 1U);
    EXPECT_EQ(copy.getStops()[0].color.get(), original->getStops()[0].color.get())
        << "colours never change, so they are shared";
    EXPECT_EQ(clone->referenceCount(), 1U) << "references to the original are not those to the clone";
}

TEST(Brush, ClonesOfTheOtherKinds) {
    const SmartPtr<Brush> solid = make<SolidColorBrush>(red(), 0.5F)->clone();
    EXPECT_EQ(solid->getBrushType(), BrushType::SolidColor);
    EXPECT_EQ(solid->getOpacity(), 0.5F);
    const SmartPtr<Brush> radial =
        make<RadialGradientBrush>(1.0F, 2.0F, 3.0F, 4.0F, GradientUnits(), GradientSpreadMethod::Pad)->clone();
    EXPECT_TRUE(static_cast<const GradientBrush&>(*radial).isRadial());
    EXPECT_EQ(static_cast<const RadialGradientBrush&>(*radial).radii(), (SizeF{3, 4}));
}

TEST(Brush, GradientTransformsMultiplyFromTheRight) {
    const auto gradient = make<LinearGradientBrush>(0.0F, 0.0F, 1.0F, 0.0F, GradientUnits(), GradientSpreadMethod());
    gradient->addMatrixTransform(2, 0, 0, 2, 0, 0);
    gradient->addMatrixTransform(1, 0, 0, 1, 10, 0);
    EXPECT_EQ(gradient->getMatrix(), Matrix(2, 0, 0, 2, 20, 0))
        << "the later translation is scaled by the earlier scale";
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

    Stroke none(nullptr, 2);
    none.setOpacity(0.5F);
    EXPECT_TRUE(none.getBrush().isEmpty());
}

TEST(Stroke, PaintsWithABrushAndAThickness) {
    const SmartPtr<Brush> brush = make<SolidColorBrush>(red());
    EXPECT_TRUE(Stroke(brush, 0.001F).paints());
    for (const float thickness :
         {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        EXPECT_FALSE(Stroke(brush, thickness).paints()) << thickness;
    }
    EXPECT_FALSE(Stroke(nullptr, 1).paints());
    EXPECT_FALSE(Stroke(make<SolidColorBrush>(nullptr), 1).paints());
}

TEST(Stroke, IsDashedWhenTheLengthsSaySomething) {
    struct Case {
        const char* why;
        Vector<float> lengths;
        bool isDashed;
    };
    const float big = std::numeric_limits<float>::max();
    for (const auto& [why, lengths, isDashed] : {
             Case{"none", {}, false},
             Case{"one is as long as its gap", {5}, true},
             Case{"only gaps of no length", {0, 0}, false},
             Case{"dots", {0, 4}, true},
             Case{"a negative length spoils all", {5, -1, 5}, false},
             Case{"as does an infinite one", {5, std::numeric_limits<float>::infinity()}, false},
             Case{"and one that is no number", {std::numeric_limits<float>::quiet_NaN()}, false},
             Case{"the sum may leave single precision", {big, big}, true},
         }) {
        Stroke stroke(make<SolidColorBrush>(red()), 1);
        stroke.setDashArray(lengths);
        EXPECT_EQ(stroke.isDashed(), isDashed) << why;
    }
}

}  // namespace
}  // namespace VEXA
