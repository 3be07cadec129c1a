#include "tests/cairo/CairoTesting.h"

// Shapes, clips and transforms are compared with another renderer in tests/pictures; here is what only pixels tell.

namespace VEXA {
namespace {

using namespace CairoTesting;

constexpr std::uint32_t kOrange = 0xFFFF8000;

Drawing filled(const Drawing& draw) { return painted(solid(0xFF8000), nullptr, draw); }

SmartPtr<Path> box(float x, float y, float width, float height) {
    return PathCommand::rectangle(x, y, width, height, 0, 0);
}

void flood(RenderContext& c) { c.drawRectangle(-1000, -1000, 3000, 3000, 0, 0); }

TEST(ShapePixels, FillsAndClips) {
    const PixelCase cases[] = {
        {"a rectangle on whole pixels has sharp edges",
         filled([](auto& c) { c.drawRectangle(10, 5, 20, 10, 0, 0); }),
         {{10, 5, kOrange}, {29, 14, kOrange}, {9, 5, 0}, {30, 14, 0}, {10, 4, 0}, {29, 15, 0}},
         0},
        {"half a pixel is half as much of it",
         filled([](auto& c) { c.drawRectangle(10.5F, 5, 4, 4, 0, 0); }),
         {{10, 6, 0x80FF8000}, {11, 6, kOrange}, {14, 6, 0x80FF8000}}},
        {"opacity of its own is kept",
         painted(solid(0xFF8000, 0.5F), nullptr, [](auto& c) { c.drawRectangle(0, 0, 20, 20, 0, 0); }),
         {{5, 5, 0x80FF8000}},
         2},
        {"an empty path", filled([](auto& c) { c.drawPath(make<Path>()); }), {{0, 0, 0}}},
        {"far coordinates keep what shows",
         filled([](auto& c) { c.drawRectangle(-1e30F, 10, 2e30F, 10, 0, 0); }),
         {{0, 9, 0}, {0, 10, kOrange}, {39, 19, kOrange}, {39, 20, 0}}},
        {"enlarged: a small shape keeps its places",
         filled([](auto& c) {
             c.addScaleTransform(1000, 1000);
             c.drawRectangle(0.005F, 0.01F, 0.01F, 0.01F, 0, 0);
         }),
         {{5, 10, kOrange}, {14, 19, kOrange}, {4, 10, 0}, {15, 19, 0}}},
        {"a clip on whole pixels has sharp edges",
         filled([](auto& c) {
             c.setClip(box(10, 5, 20, 10));
             flood(c);
         }),
         {{10, 5, kOrange}, {29, 14, kOrange}, {9, 5, 0}, {30, 14, 0}, {29, 15, 0}},
         0},
        {"a clip without a place lets nothing through",
         filled([](auto& c) {
             c.addScaleTransform(0, 1);
             c.setClip(box(0, 0, 20, 20));
             DrawingState state = c.state();
             state.transform = Matrix();
             c.restoreState(state);
             flood(c);
         }),
         {{10, 10, 0}}},
        {"more clips than a recursion could bear",
         filled([](auto& c) {
             for (int i = 0; i < 20'000; ++i) c.setClip(box(0, 0, 20, 20));
             flood(c);
         }),
         {{19, 19, kOrange}, {20, 19, 0}}},
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
}

}  // namespace
}  // namespace VEXA
