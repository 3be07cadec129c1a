#include "tests/cairo/CairoTesting.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

constexpr std::uint32_t kGreen = 0xFF00FF00;

SmartPtr<Path> box(float x, float y, float width, float height) {
    return PathCommand::rectangle(x, y, width, height, 0, 0);
}

/// Fills the whole page.
void flood(RenderContext& c) {
    c.setFill(solid(0x00FF00));
    c.drawRectangle(-1000, -1000, 3000, 3000, 0, 0);
}

TEST(ClipPixels, Clips) {
    const PixelCase cases[] = {
        {"only inside",
         [](RenderContext& c) {
             c.setClip(box(10, 5, 20, 10));
             flood(c);
         },
         {{10, 5, kGreen}, {29, 14, kGreen}, {9, 5, 0}, {30, 14, 0}, {29, 15, 0}}},
        {"inside of both",
         [](RenderContext& c) {
             c.setClip(box(0, 0, 20, 20));
             c.setClip(box(10, 10, 20, 20));
             flood(c);
         },
         {{10, 10, kGreen}, {19, 19, kGreen}, {9, 10, 0}, {20, 19, 0}}},
        {"each in the transform in force when it was set",
         [](RenderContext& c) {
             c.addTranslateTransform(10, 0);
             c.setClip(box(0, 0, 20, 30));  // 10 to 30
             c.addScaleTransform(2, 1);
             c.setClip(box(0, 0, 5, 30));  // 10 to 20
             c.addTranslateTransform(100, 0);
             flood(c);
         },
         {{10, 5, kGreen}, {19, 5, kGreen}, {9, 5, 0}, {20, 5, 0}}},
        {"it ends with its scope",
         [](RenderContext& c) {
             {
                 const RenderContextScope scope{SmartPtr<RenderContext>(&c)};
                 c.setClip(box(0, 0, 5, 5));
                 flood(c);
             }
             c.setClip(box(20, 20, 5, 5));
             flood(c);
         },
         {{4, 4, kGreen}, {5, 5, 0}, {20, 20, kGreen}, {24, 24, kGreen}, {25, 25, 0}}},
        {"an outer one stays when an inner one ends",
         [](RenderContext& c) {
             c.setClip(box(0, 0, 20, 20));
             {
                 const RenderContextScope scope{SmartPtr<RenderContext>(&c)};
                 c.setClip(box(0, 0, 2, 2));
                 flood(c);
             }
             flood(c);
         },
         {{10, 10, kGreen}, {20, 10, 0}}},
        {"the even-odd rule holds here too",
         [](RenderContext& c) {
             const auto ring = make<Path>();
             ring->moveTo({0, 0}).lineTo({20, 0}).lineTo({20, 20}).lineTo({0, 20}).close();
             ring->moveTo({5, 5}).lineTo({15, 5}).lineTo({15, 15}).lineTo({5, 15}).close();
             c.setClip(ring);
             flood(c);
         },
         {{2, 2, kGreen}, {10, 10, 0}, {17, 10, kGreen}}},
        {"an empty one lets nothing through",
         [](RenderContext& c) {
             c.setClip(make<Path>());
             flood(c);
         },
         {{10, 10, 0}}},
        {"nor does one without a place",
         [](RenderContext& c) {
             c.addScaleTransform(0, 1);
             c.setClip(box(0, 0, 20, 20));
             DrawingState state = c.state();
             state.transform = Matrix();
             c.restoreState(state);
             flood(c);
         },
         {{10, 10, 0}}},
        {"nor one with a coordinate that is not finite",
         [](RenderContext& c) {
             c.setClip(box(0, 0, kNaN, 20));
             flood(c);
         },
         {{0, 10, 0}, {10, 10, 0}}},
        {"strokes are clipped, and texts",
         [](RenderContext& c) {
             c.setClip(box(0, 0, 10, 30));
             c.setStroke(pen(0x00FF00, 4));
             c.drawLine(0, 10, 40, 10);
             c.setFill(solid(0x00FF00));
             c.setFont(fontOf("sans-serif", 60));
             c.drawText("HHH", 3, 0, 30, 0, 0);
         },
         {{9, 10, kGreen}, {10, 10, 0}, {12, 15, 0}, {30, 15, 0}}},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

/// More clips than a recursion could bear.
TEST(ClipPixels, ADeepChain) {
    const Picture picture = drawn([](RenderContext& c) {
        for (int i = 0; i < 20'000; ++i) c.setClip(box(0, 0, 20, 20));
        flood(c);
    });
    expectPixel(picture, 19, 19, kGreen, "all of them");
    expectPixel(picture, 20, 19, 0, "all of them");
}

}  // namespace
}  // namespace VEXA
