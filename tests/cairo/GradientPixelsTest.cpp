#include "tests/cairo/CairoTesting.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

/// Opaque, so far on the way from red to blue.
std::uint32_t mixed(double way) {
    const auto blue = static_cast<std::uint32_t>(way * 255 + 0.5);
    return 0xFF000000U | (255 - blue) << 16U | blue;
}

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

SmartPtr<GradientBrush> withStops(SmartPtr<GradientBrush> gradient) {
    gradient->addStop(0, colorOf(0xFF0000), 1);
    gradient->addStop(1, colorOf(0x0000FF), 1);
    return gradient;
}

SmartPtr<GradientBrush> linear(float x1, float y1, float x2, float y2, GradientUnits units,
                               GradientSpreadMethod spread = GradientSpreadMethod::Pad) {
    return withStops(make<LinearGradientBrush>(x1, y1, x2, y2, units, spread));
}

SmartPtr<GradientBrush> radial(float cx, float cy, float rx, float ry, GradientUnits units) {
    return withStops(make<RadialGradientBrush>(cx, cy, rx, ry, units, GradientSpreadMethod::Pad));
}

SmartPtr<GradientBrush> moved(SmartPtr<GradientBrush> gradient, const Matrix& m) {
    const auto& [a, b, c, d, e, f] = m.getElements();
    gradient->addMatrixTransform(a, b, c, d, e, f);
    return gradient;
}

constexpr auto kUser = GradientUnits::UserSpaceOnUse;
constexpr auto kBox = GradientUnits::ObjectBoundingBox;

Drawing page(const SmartPtr<GradientBrush>& fill) {
    return painted(fill, nullptr, [](auto& c) { c.drawRectangle(0, 0, 40, 30, 0, 0); });
}

Drawing under(const Matrix& matrix, const Drawing& draw) {
    return [=](RenderContext& c) {
        DrawingState state = c.state();
        state.transform = matrix;
        c.restoreState(state);
        draw(c);
    };
}

SmartPtr<GradientBrush> threeStops() {
    const SmartPtr<GradientBrush> gradient =
        make<LinearGradientBrush>(0.0F, 0.0F, 40.0F, 0.0F, kUser, GradientSpreadMethod::Pad);
    gradient->addStop(0.5F, colorOf(0xFF0000), 1);
    gradient->addStop(0.25F, colorOf(0x00FF00), 1);    // counts as 0.5
    gradient->addStop(kNaN, colorOf(0x0000FF), 0.5F);  // as 0.5 as well
    return gradient;
}

/// Every 10 px, the stops within them.
SmartPtr<GradientBrush> betweenStops(float first, float last) {
    const SmartPtr<GradientBrush> gradient =
        make<LinearGradientBrush>(0.0F, 0.0F, 10.0F, 0.0F, kUser, GradientSpreadMethod::Repeat);
    gradient->addStop(first, colorOf(0xFF0000), 1);
    gradient->addStop(last, colorOf(0x0000FF), 1);
    return gradient;
}

// A pixel is what the gradient is in its middle: pixel 10 is at 10.5.
TEST(GradientPixels, Linear) {
    const PixelCase cases[] = {
        {"over the box of the shape",
         page(redToBlue()),
         {{0, 15, mixed(0.5 / 40)}, {20, 0, mixed(20.5 / 40)}, {39, 29, mixed(39.5 / 40)}},
         2},
        {"beyond its ends the colours stay",
         page(linear(10, 0, 20, 0, kUser)),
         {{2, 5, kRed}, {15, 5, mixed(0.55)}, {30, 5, kBlue}},
         2},
        {"reflected",
         page(linear(10, 0, 20, 0, kUser, GradientSpreadMethod::Reflect)),
         {{22, 5, mixed(0.75)}, {32, 5, mixed(0.25)}, {7, 5, mixed(0.25)}},
         2},
        {"repeated",
         page(linear(10, 0, 20, 0, kUser, GradientSpreadMethod::Repeat)),
         {{22, 5, mixed(0.25)}, {32, 5, mixed(0.25)}, {7, 5, mixed(0.75)}},
         2},
        {"across a box that is no square its stripes are slanted: (30.5 / 40 + 2.5 / 30) / 2",
         page(linear(0, 0, 1, 1, kBox)),
         {{30, 2, mixed(0.4229)}, {2, 27, mixed(0.4896)}, {39, 29, mixed(0.985)}},
         2},
        {"a matrix of its own, turned to run down",
         page(moved(linear(0, 0, 30, 0, kUser), Matrix().rotate(90))),
         {{5, 0, mixed(0.5 / 30)}, {35, 15, mixed(15.5 / 30)}},
         2},
        {"under the transform in force: user space is twice as large",
         under(Matrix(2, 0, 0, 2, 0, 0), page(linear(0, 0, 20, 0, kUser))),
         {{10, 5, mixed(10.5 / 40)}},
         2},
        {"skewed: x is the page's x - y, stripes lean with it",
         under(Matrix(1, 0, 1, 1, 0, 0), page(linear(0, 0, 20, 0, kUser))),
         {{20, 10, mixed(0.5)}, {25, 10, mixed(0.75)}},
         2},
        {"a tiny space drawn large is as smooth",
         under(Matrix(1e5F, 0, 0, 1e5F, 0, 0),
               [](RenderContext& c) {
                   c.setFill(redToBlue());
                   c.drawRectangle(0, 0, 4e-4F, 3e-4F, 0, 0);
               }),
         {{10, 15, mixed(10.5 / 40)}, {30, 15, mixed(30.5 / 40)}},
         2},
        {"repeated, the first and the last colour reach to its ends: red to 12.5, blue from 17.5 on",
         page(betweenStops(0.25F, 0.75F)),
         {{11, 5, kRed}, {14, 5, mixed(0.4)}, {18, 5, kBlue}, {21, 5, kRed}},
         2},
        {"offsets never go back", page(threeStops()), {{10, 5, kRed}, {30, 5, 0x800000FF}}, 2},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

TEST(GradientPixels, Radial) {
    const PixelCase cases[] = {
        {"a circle: 5.5 px from (20.5, 15.5)",
         page(radial(20.5F, 15.5F, 11, 11, kUser)),
         {{20, 15, kRed}, {26, 15, mixed(6.0 / 11)}, {20, 10, mixed(5.0 / 11)}, {35, 15, kBlue}},
         3},
        {"an ellipse is half as high",
         page(radial(20.5F, 15.5F, 16, 8, kUser)),
         {{28, 15, mixed(0.5)}, {20, 19, mixed(0.5)}, {20, 25, kBlue}},
         3},
        {"over the box",
         page(radial(0.5F, 0.5F, 0.5F, 0.5F, kBox)),
         {{30, 14, mixed(10.5 / 20)}, {19, 22, mixed(7.5 / 15)}},
         6},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

TEST(GradientPixels, OpacityOfTheStopsAndOfTheBrush) {
    const SmartPtr<GradientBrush> fading =
        make<LinearGradientBrush>(0.0F, 0.0F, 40.0F, 0.0F, kUser, GradientSpreadMethod::Pad);
    fading->addStop(0, colorOf(0xFF0000), 1);
    fading->addStop(1, colorOf(0xFF0000), 0);
    fading->setOpacity(0.5F);
    // 1 - 10.5 / 40 = 0.7375 of half of 255
    expectPixels({"both", page(fading), {{10, 5, 0x5EFF0000}, {39, 5, 0x02FF0000}}, 2});
}

/// The box is that of the outline, without the stroke; a curve counts, not the points that steer it.
TEST(GradientPixels, Boxes) {
    const auto stroke = make<Stroke>(redToBlue(), 8.0F);
    const SmartPtr<Path> arch =
        make<Path>();  // its handles stand at x = 60, its right end at x = 40 * 3 / 4 + ... = 45
    arch->moveTo({0, 0}).curveTo({60, 0}, {60, 30}, {0, 30}).close();
    const SmartPtr<GradientBrush> flat = redToBlue();
    const PixelCase cases[] = {
        {"a stroke reaches beyond its box, where the colours stay",
         painted(nullptr, stroke, [](auto& c) { c.drawRectangle(10, 10, 20, 10, 0, 0); }),
         {{7, 15, kRed}, {20, 8, mixed(10.5 / 20)}, {32, 15, kBlue}},
         2},
        {"the box of an arch is 45 px wide: 60 * 3 / 4",
         painted(redToBlue(), nullptr, [=](auto& c) { c.drawPath(arch); }),
         {{22, 15, mixed(22.5 / 45)}},
         2},
        {"a line has no box: it is drawn in the last colour",
         painted(nullptr, stroke, [](auto& c) { c.drawLine(0, 15, 40, 15); }),
         {{5, 15, kBlue}, {35, 15, kBlue}}},
        {"a gradient that no pixel is small enough for",
         page(linear(20, 0, 20.0F + 2e-6F, 0, kUser)),
         {{10, 5, kRed}, {30, 5, kBlue}}},
        {"a gradient beyond all counting is its last colour",
         page(linear(-3e38F, 0, 3e38F, 0, kUser)),
         {{20, 15, kBlue}}},
        {"a bar that reaches far off the page is coloured across",
         painted(redToBlue(), nullptr, [](auto& c) { c.drawRectangle(10, 20, 20, -1e30F, 0, 0); }),
         {{10, 10, mixed(0.5 / 20)}, {25, 10, mixed(15.5 / 20)}},
         2},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

/// A unit square over a large picture: matrices of 16.16 numbers would be off by a tenth of it at the far end.
TEST(GradientPixels, LargePicturesAreAsExact) {
    const Picture picture =
        drawn(painted(redToBlue(), nullptr, [](auto& c) { c.drawRectangle(0, 0, 9000, 2, 0, 0); }), {}, {9000, 2});
    for (const int x : {100, 4500, 8999})
        expectPixel(picture, x, 1, mixed((x + 0.5) / 9000), "at " + std::to_string(x));
}

}  // namespace
}  // namespace VEXA
