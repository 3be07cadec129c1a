#include "vexa/surfaces/Paint.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/surfaces/SurfaceTesting.h"

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr auto kBox = GradientUnits::ObjectBoundingBox;
constexpr auto kPad = GradientSpreadMethod::Pad;

SmartPtr<Brush> withStops(SmartPtr<GradientBrush> gradient, Vector<StopPoint> stops, float opacity = 1) {
    gradient->setStops(std::move(stops));
    gradient->setOpacity(opacity);
    return gradient;
}

SmartPtr<Brush> transformed(const Matrix& matrix) {
    const SmartPtr<GradientBrush> gradient = redToBlue();
    const auto& [a, b, c, d, e, f] = matrix.getElements();
    gradient->addMatrixTransform(a, b, c, d, e, f);
    return gradient;
}

SmartPtr<Brush> linear(float x1, float y1, float x2, float y2) {
    return withStops(make<LinearGradientBrush>(x1, y1, x2, y2, kBox, kPad), redToBlue()->getStops());
}

SmartPtr<Brush> radial(float cx, float cy, float rx, float ry) {
    return withStops(make<RadialGradientBrush>(cx, cy, rx, ry, kBox, kPad), redToBlue()->getStops());
}

struct ColorCase {
    const char* why;
    SmartPtr<Brush> brush;
    std::uint32_t rgb;
    float opacity;
};

class PaintsOneColor : public testing::TestWithParam<ColorCase> {};

TEST_P(PaintsOneColor, OrNothing) {
    const Paint paint = resolvePaint(GetParam().brush.get());
    EXPECT_EQ(paint.gradient, nullptr) << GetParam().why;
    EXPECT_EQ(paint.rgb, GetParam().rgb) << GetParam().why;
    EXPECT_FLOAT_EQ(paint.opacity, GetParam().opacity) << GetParam().why;
    EXPECT_EQ(paint.paints(), GetParam().opacity > 0) << GetParam().why;
}

const SmartPtr<Color> kNoColor;

INSTANTIATE_TEST_SUITE_P(
    Brushes, PaintsOneColor,
    testing::Values(
        ColorCase{"no brush", nullptr, 0, 0}, ColorCase{"a colour", solid(0x123456, 0.5F), 0x123456, 0.5F},
        ColorCase{"a brush without a colour", make<SolidColorBrush>(nullptr), 0, 0},
        ColorCase{"fully transparent", solid(0x123456, 0), 0x123456, 0},
        ColorCase{"opacity is cut to 0", solid(0x123456, -3), 0x123456, 0},
        ColorCase{"and to 1", solid(0x123456, 3), 0x123456, 1},
        ColorCase{"an opacity that is no number is as if not given", solid(0x123456, kNaN), 0x123456, 1},
        ColorCase{"no stops", withStops(redToBlue(), {}), 0, 0},
        ColorCase{"one stop is that colour; both opacities count",
                  withStops(redToBlue(), {{0.3F, colorOf(0x00FF00), 0.5F}}, 0.5F), 0x00FF00, 0.25F},
        ColorCase{"only one stop has a colour",
                  withStops(redToBlue(), {{0, kNoColor, 1}, {0.5F, colorOf(0x00FF00), 1}, {1, kNoColor, 1}}), 0x00FF00,
                  1},
        ColorCase{"no stop has a colour", withStops(redToBlue(), {{0, kNoColor, 1}, {1, kNoColor, 1}}), 0, 0}));

INSTANTIATE_TEST_SUITE_P(
    WithoutExtent, PaintsOneColor,
    testing::Values(ColorCase{"start and end are one point", linear(3, 4, 3, 4), 0x0000FF, 1},
                    ColorCase{"an end that is no number", linear(0, 0, kNaN, 0), 0x0000FF, 1},
                    ColorCase{"no radius, as a radius in percent gives it", radial(0.5F, 0.5F, 0, 0), 0x0000FF, 1},
                    ColorCase{"no height", radial(0.5F, 0.5F, 1, 0), 0x0000FF, 1},
                    ColorCase{"a negative radius", radial(0.5F, 0.5F, -1, 1), 0x0000FF, 1},
                    ColorCase{"a negative one downward", radial(0.5F, 0.5F, 1, -1), 0x0000FF, 1},
                    ColorCase{"an infinite radius", radial(0.5F, 0.5F, kInfinity, 1), 0x0000FF, 1},
                    ColorCase{"so narrow that its matrix leaves single precision", radial(0, 0, 1e-30F, 1e30F),
                              0x0000FF, 1},
                    ColorCase{"a matrix that makes a line of the plane", transformed({1, 2, 2, 4, 0, 0}), 0x0000FF, 1},
                    ColorCase{"an infinite matrix", transformed({kInfinity, 0, 0, 1, 0, 0}), 0x0000FF, 1}));

TEST(Paint, AGradientStaysOne) {
    const SmartPtr<Brush> brush = linear(0, 0, 0, 1);
    brush->setOpacity(0.5F);
    const Paint paint = resolvePaint(brush.get());
    EXPECT_EQ(paint.gradient, brush.get());
    EXPECT_EQ(paint.opacity, 0.5F);
    EXPECT_TRUE(paint.dependsOnBox());
}

TEST(Paint, OnAFlatBoxAGradientOverTheBoxIsItsLastStop) {
    const SmartPtr<Brush> overBox = redToBlue();
    overBox->setOpacity(0.5F);
    const Paint flat = onFlatBox(resolvePaint(overBox.get()));
    EXPECT_EQ(flat.gradient, nullptr);
    EXPECT_EQ(flat.rgb, 0x0000FFU);
    EXPECT_EQ(flat.opacity, 0.5F);

    const SmartPtr<Brush> overPage = redToBlue(GradientUnits::UserSpaceOnUse);
    EXPECT_EQ(onFlatBox(resolvePaint(overPage.get())).gradient, overPage.get()) << "needs no box";
    EXPECT_EQ(onFlatBox(resolvePaint(solid(0x123456).get())).rgb, 0x123456U);
}

TEST(Paint, AStrokeWithoutThicknessIsNothing) {
    EXPECT_TRUE(resolvePaint(pen(0x123456).get()).paints());
    EXPECT_FALSE(resolvePaint(pen(0x123456, 0).get()).paints());
    EXPECT_FALSE(resolvePaint(static_cast<const Stroke*>(nullptr)).paints());
}

TEST(Paint, AnEllipticGradientIsAStretchedCircle) {
    RadialGradientBrush gradient(10, 20, 4, 2, kBox, kPad);
    gradient.addMatrixTransform(1, 0, 0, 1, 100, 0);
    // y about the centre halved: y' = 20 + (y - 20) / 2
    EXPECT_EQ(gradientMatrix(gradient), Matrix(1, 0, 0, 0.5F, 100, 10));
}

}  // namespace
}  // namespace VEXA
