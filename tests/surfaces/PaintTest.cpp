#include "vexa/surfaces/Paint.h"

#include <gtest/gtest.h>

#include <tuple>

#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA {
namespace {

constexpr auto kBox = GradientUnits::ObjectBoundingBox;
constexpr auto kPad = GradientSpreadMethod::Pad;

SmartPtr<Brush> withStops(SmartPtr<GradientBrush> gradient, Vector<StopPoint> stops, float opacity = 1) {
    gradient->setStops(std::move(stops));
    gradient->setOpacity(opacity);
    return gradient;
}

SmartPtr<Brush> transformed(float a, float b, float c, float d) {
    const SmartPtr<GradientBrush> gradient = redToBlue();
    gradient->addMatrixTransform(a, b, c, d, 0, 0);
    return gradient;
}

SmartPtr<Brush> linear(float x1, float y1, float x2, float y2) {
    return withStops(make<LinearGradientBrush>(x1, y1, x2, y2, kBox, kPad), redToBlue()->getStops());
}

SmartPtr<Brush> radial(float rx, float ry) {
    return withStops(make<RadialGradientBrush>(0.0F, 0.0F, rx, ry, kBox, kPad), redToBlue()->getStops());
}

TEST(Paint, IsOneColorOrNothing) {
    const SmartPtr<Color> none;
    const SmartPtr<Color> green = colorOf(0x00FF00);
    const std::tuple<const char*, SmartPtr<Brush>, std::uint32_t, float> cases[] = {
        {"no brush", nullptr, 0, 0},
        {"a colour", solid(0x123456, 0.5F), 0x123456, 0.5F},
        {"a brush without a colour", make<SolidColorBrush>(nullptr), 0, 0},
        {"opacity is cut to 0", solid(0x123456, -3), 0x123456, 0},
        {"and to 1", solid(0x123456, 3), 0x123456, 1},
        {"an opacity that is no number is as if not given", solid(0x123456, kNaN), 0x123456, 1},
        {"one stop; both opacities count", withStops(redToBlue(), {{0.3F, green, 0.5F}}, 0.5F), 0x00FF00, 0.25F},
        {"none with a colour", withStops(redToBlue(), {{0, none, 1}, {1, none, 1}}), 0, 0},
        {"start and end are one point", linear(3, 4, 3, 4), 0x0000FF, 1},
        {"an end that is no number", linear(0, 0, kNaN, 0), 0x0000FF, 1},
        {"no radius downward, as one in percent may give it", radial(1, 0), 0x0000FF, 1},
        {"a negative radius", radial(-1, 1), 0x0000FF, 1},
        {"an infinite radius", radial(kInfinity, 1), 0x0000FF, 1},
        {"so narrow that its matrix leaves single precision", radial(1e-30F, 1e30F), 0x0000FF, 1},
        {"an infinite matrix", transformed(kInfinity, 0, 0, 1), 0x0000FF, 1},
        {"a matrix that makes a line of the plane", transformed(1, 2, 2, 4), 0x0000FF, 1},
    };
    for (const auto& [why, brush, rgb, opacity] : cases) {
        const Paint paint = resolvePaint(brush.get());
        EXPECT_EQ(paint.gradient, nullptr) << why;
        EXPECT_EQ(paint.rgb, rgb) << why;
        EXPECT_FLOAT_EQ(paint.opacity, opacity) << why;
        EXPECT_EQ(paint.paints(), opacity > 0) << why;
    }
}

TEST(Paint, AGradientOverTheBoxNeedsOne) {
    const SmartPtr<Brush> overBox = redToBlue();
    overBox->setOpacity(0.5F);
    const Paint paint = resolvePaint(overBox.get());
    EXPECT_EQ(paint.gradient, overBox.get());
    EXPECT_EQ(paint.opacity, 0.5F);
    const Paint flat = onFlatBox(paint);
    EXPECT_EQ(flat.gradient, nullptr);
    EXPECT_EQ(flat.rgb, 0x0000FFU) << "the last stop";
    EXPECT_EQ(flat.opacity, 0.5F);
    const SmartPtr<Brush> overPage = redToBlue(GradientUnits::UserSpaceOnUse);
    EXPECT_EQ(onFlatBox(resolvePaint(overPage.get())).gradient, overPage.get());
}

TEST(Paint, AnEllipticGradientIsAStretchedCircle) {
    RadialGradientBrush gradient(10, 20, 4, 2, kBox, kPad);
    gradient.addMatrixTransform(1, 0, 0, 1, 100, 0);
    // y about the centre halved: y' = 20 + (y - 20) / 2
    EXPECT_EQ(gradientMatrix(gradient), Matrix(1, 0, 0, 0.5F, 100, 10));
}

}  // namespace
}  // namespace VEXA
