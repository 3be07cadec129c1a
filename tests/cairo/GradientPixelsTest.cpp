#include "tests/cairo/CairoTesting.h"

// Vectors, matrices, spreads and stops are compared with another renderer in tests/pictures; here is what only pixels
// tell.

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

/// Along the page from x1 to x2.
SmartPtr<GradientBrush> linear(float x1, float x2, const Vector<StopPoint>& stops) {
    const SmartPtr<GradientBrush> gradient =
        make<LinearGradientBrush>(x1, 0.0F, x2, 0.0F, GradientUnits::UserSpaceOnUse, GradientSpreadMethod::Pad);
    gradient->setStops(stops);
    return gradient;
}

Drawing filled(const SmartPtr<GradientBrush>& fill, float x, float y, float width, float height) {
    return painted(fill, nullptr, [=](auto& c) { c.drawRectangle(x, y, width, height, 0, 0); });
}

Drawing page(const SmartPtr<GradientBrush>& fill) { return filled(fill, 0, 0, 40, 30); }

// A pixel is what the gradient is in its middle: pixel 10 is at 10.5.
TEST(GradientPixels, AreExactAtTheLimits) {
    const Vector<StopPoint> ends = {{0, colorOf(0xFF0000), 1}, {1, colorOf(0x0000FF), 1}};
    const Vector<StopPoint> backwards = {{0.5F, colorOf(0xFF0000), 1},
                                         {0.25F, colorOf(0x00FF00), 1},     // counts as 0.5
                                         {kNaN, colorOf(0x0000FF), 0.5F}};  // as 0.5 as well
    const auto arch = make<Path>();  // its handles stand at x = 60, its right end at 60 * 3 / 4
    arch->moveTo({0, 0}).curveTo({60, 0}, {60, 30}, {0, 30}).close();
    const PixelCase cases[] = {
        {"over the box of the shape",
         page(redToBlue()),
         {{0, 15, mixed(0.5 / 40)}, {20, 0, mixed(20.5 / 40)}, {39, 29, mixed(39.5 / 40)}},
         2},
        {"the box of an arch is 45 px wide: a curve counts, not the points that steer it",
         painted(redToBlue(), nullptr, [=](auto& c) { c.drawPath(arch); }),
         {{22, 15, mixed(22.5 / 45)}},
         2},
        {"a tiny space drawn large is as smooth",
         [](RenderContext& c) {
             c.addScaleTransform(1e5F, 1e5F);
             filled(redToBlue(), 0, 0, 4e-4F, 3e-4F)(c);
         },
         {{10, 15, mixed(10.5 / 40)}, {30, 15, mixed(30.5 / 40)}},
         2},
        {"offsets never go back", page(linear(0, 40, backwards)), {{10, 5, kRed}, {30, 5, 0x800000FF}}, 2},
        {"one that no pixel is small enough for",
         page(linear(20, 20.0F + 2e-6F, ends)),
         {{10, 5, kRed}, {30, 5, kBlue}}},
        {"one beyond all counting is its last colour", page(linear(-3e38F, 3e38F, ends)), {{20, 15, kBlue}}},
        {"a bar that reaches far off the page is coloured across",
         filled(redToBlue(), 10, 20, 20, -1e30F),
         {{10, 10, mixed(0.5 / 20)}, {25, 10, mixed(15.5 / 20)}},
         2},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

/// A unit square over a large picture: matrices of 16.16 numbers would be off by a tenth of it at the far end.
TEST(GradientPixels, LargePicturesAreAsExact) {
    const Picture picture = drawn(filled(redToBlue(), 0, 0, 9000, 2), {}, {9000, 2});
    for (const int x : {100, 4500, 8999})
        expectPixel(picture, x, 1, mixed((x + 0.5) / 9000), "at " + std::to_string(x));
}

}  // namespace
}  // namespace VEXA
