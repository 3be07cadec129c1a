#include "tests/cairo/CairoTesting.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

constexpr std::uint32_t kOrange = 0xFFFF8000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

Drawing filled(const Drawing& draw) { return painted(solid(0xFF8000), nullptr, draw); }

Drawing scaled(float x, float y, const Drawing& draw) {
    return filled([=](RenderContext& c) {
        c.addScaleTransform(x, y);
        draw(c);
    });
}

/// Two squares around each other, both clockwise.
SmartPtr<Path> ring() {
    const auto path = make<Path>();
    path->moveTo({5, 5}).lineTo({25, 5}).lineTo({25, 25}).lineTo({5, 25}).close();
    path->moveTo({10, 10}).lineTo({20, 10}).lineTo({20, 20}).lineTo({10, 20}).close();
    return path;
}

TEST(ShapePixels, Fills) {
    const PixelCase cases[] = {
        {"a rectangle on whole pixels has sharp edges",
         filled([](auto& c) { c.drawRectangle(10, 5, 20, 10, 0, 0); }),
         {{10, 5, kOrange}, {29, 14, kOrange}, {9, 5, 0}, {30, 14, 0}, {10, 4, 0}, {29, 15, 0}},
         0},
        {"half a pixel is half as much of it",
         filled([](auto& c) { c.drawRectangle(10.5F, 5, 4, 4, 0, 0); }),
         {{10, 6, 0x80FF8000}, {11, 6, kOrange}, {14, 6, 0x80FF8000}}},
        {"sizes below 0 reach to the other side",
         filled([](auto& c) { c.drawRectangle(30, 15, -20, -10, 0, 0); }),
         {{10, 5, kOrange}, {29, 14, kOrange}, {30, 15, 0}}},
        {"corners are rounded off: (10, 5) lies 2.8 px outside the arc about (16, 11), (12, 7) 1.1 px inside",
         filled([](auto& c) { c.drawRectangle(10, 5, 20, 20, 6, 6); }),
         {{10, 5, 0}, {12, 7, kOrange}, {16, 5, kOrange}, {10, 11, kOrange}, {29, 24, 0}}},
        {"an ellipse reaches to its radii: (6, 6) has ((6.5 - 20) / 16)^2 + ((6.5 - 15) / 10)^2 = 1.43 > 1",
         filled([](auto& c) { c.drawEllipse(20, 15, 16, 10); }),
         {{20, 15, kOrange},
          {5, 15, kOrange},
          {34, 15, kOrange},
          {20, 6, kOrange},
          {20, 23, kOrange},
          {6, 6, 0},
          {3, 15, 0}}},
        {"what lies inside of two outlines is outside",
         filled([](auto& c) { c.drawPath(ring()); }),
         {{7, 7, kOrange}, {12, 12, 0}, {22, 22, kOrange}, {26, 26, 0}}},
        {"an open path is closed for filling",
         filled([](auto& c) {
             c.drawPath(PathCommand::polygon({{0, 0}, {20, 0}, {20, 20}}, false));
         }),
         {{15, 5, kOrange}, {5, 15, 0}}},
        {"an open polygon is not filled",
         filled([](auto& c) {
             c.drawPolygon({{0, 0}, {20, 0}, {20, 20}}, false);
         }),
         {{15, 5, 0}}},
        {"the first operation lies below",
         [](RenderContext& c) {
             c.setFill(solid(0xFF8000));
             c.drawRectangle(0, 0, 20, 20, 0, 0);
             c.setFill(solid(0x0000FF));
             c.drawRectangle(10, 10, 20, 20, 0, 0);
         },
         {{5, 5, kOrange}, {15, 15, kBlue}, {25, 25, kBlue}}},
        {"opacity lets the one below through: 0.25 of blue, 0.75 of orange",
         [](RenderContext& c) {
             c.setFill(solid(0xFF8000));
             c.drawRectangle(0, 0, 20, 20, 0, 0);
             c.setFill(solid(0x0000FF, 0.25F));
             c.drawRectangle(0, 0, 20, 20, 0, 0);
         },
         {{5, 5, 0xFFBF6040}}},
        {"opacity of its own is kept",
         painted(solid(0xFF8000, 0.5F), nullptr, [](auto& c) { c.drawRectangle(0, 0, 20, 20, 0, 0); }),
         {{5, 5, 0x80FF8000}},
         2},
        {"without a colour nothing shows",
         painted(make<SolidColorBrush>(nullptr), make<Stroke>(nullptr, 3.0F),
                 [](auto& c) { c.drawRectangle(0, 0, 20, 20, 0, 0); }),
         {{5, 5, 0}, {0, 0, 0}}},
        {"the outline lies on the fill, half of it inside",
         painted(solid(0xFF8000), pen(0x0000FF, 4), [](auto& c) { c.drawRectangle(10, 10, 16, 10, 0, 0); }),
         {{8, 8, kBlue}, {11, 15, kBlue}, {12, 12, kOrange}, {7, 15, 0}}},
        {"an empty path", filled([](auto& c) { c.drawPath(make<Path>()); }), {{0, 0, 0}}},
        {"no coordinate, no shape",
         filled([](auto& c) {
             c.drawPath(PathCommand::polygon({{0, 0}, {kNaN, 0}, {20, 20}, {0, 20}}, true));
         }),
         {{1, 5, 0}, {5, 15, 0}}},
        {"an infinite one neither", filled([](auto& c) { c.drawRectangle(0, 0, kInfinity, 20, 0, 0); }), {{5, 5, 0}}},
        {"far coordinates keep what shows",
         filled([](auto& c) { c.drawRectangle(-1e30F, 10, 2e30F, 10, 0, 0); }),
         {{0, 9, 0}, {0, 10, kOrange}, {39, 19, kOrange}, {39, 20, 0}}},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

TEST(ShapePixels, Transforms) {
    const PixelCase cases[] = {
        {"scaled: 2 * 3 = 6 to 2 * 8 = 16, 3 * 2 = 6 to 3 * 6 = 18",
         scaled(2, 3, [](auto& c) { c.drawRectangle(3, 2, 5, 4, 0, 0); }),
         {{6, 6, kOrange}, {15, 17, kOrange}, {5, 6, 0}, {16, 17, 0}, {6, 18, 0}}},
        {"turned by a right angle about (20, 10): x runs down, y to the left",
         filled([](auto& c) {
             c.addTranslateTransform(20, 10);
             c.addRotateTransform(90);
             c.drawRectangle(0, 0, 8, 3, 0, 0);
         }),
         {{17, 10, kOrange}, {19, 17, kOrange}, {16, 10, 0}, {20, 10, 0}, {19, 18, 0}}},
        {"enlarged: a small shape keeps its places",
         scaled(1000, 1000, [](auto& c) { c.drawRectangle(0.005F, 0.01F, 0.01F, 0.01F, 0, 0); }),
         {{5, 10, kOrange}, {14, 19, kOrange}, {4, 10, 0}, {15, 19, 0}}},
        {"without an inverse", scaled(1, 0, [](auto& c) { c.drawRectangle(0, 0, 20, 20, 0, 0); }), {{0, 0, 0}}},
        {"not finite", scaled(kNaN, 1, [](auto& c) { c.drawRectangle(0, 0, 20, 20, 0, 0); }), {{5, 5, 0}}},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

/// The picture's size for a page and a scale, and the pixel that a square of 1 px at (2, 1) makes.
TEST(ShapePixels, PagesAreScaledAndRoundedUp) {
    struct Case {
        const char* why;
        SizeF page;
        float scale;
        int width;
        int height;
    };
    const Case cases[] = {
        {"as it is", {40, 30}, 1, 40, 30},
        {"twice", {40, 30}, 2, 80, 60},
        {"a part of a pixel is a pixel", {40.25F, 29.5F}, 1, 41, 30},
        {"no float is 1.1: 560 of them are no more than 616", {560, 440}, 1.1F, 616, 484},
        {"at least one", {0.0001F, 0.25F}, 1, 1, 1},
        {"smaller", {40, 30}, 0.5F, 20, 15},
    };
    for (const Case& c : cases) {
        const Picture picture =
            drawn(filled([](auto& s) { s.drawRectangle(2, 1, 1, 1, 0, 0); }), {c.scale, 0, {}}, c.page);
        EXPECT_EQ(picture.width, c.width) << c.why;
        EXPECT_EQ(picture.height, c.height) << c.why;
        if (c.scale == 2) expectPixel(picture, 5, 3, kOrange, c.why);
    }
}

TEST(ShapePixels, TheBackgroundLiesBelowAll) {
    const Drawing half = painted(solid(0xFF0000, 0.5F), nullptr, [](auto& c) { c.drawRectangle(0, 0, 10, 10, 0, 0); });
    const Picture onWhite = drawn(half, {.background = colorOf(0xFFFFFF)});
    expectPixel(onWhite, 5, 5, 0xFFFF8080, "half red, half white");
    expectPixel(onWhite, 20, 20, 0xFFFFFFFF, "nothing drawn");
    expectPixel(drawn(half), 20, 20, 0, "transparent where there is none");
}

}  // namespace
}  // namespace VEXA
