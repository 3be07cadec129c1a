#include "tests/cairo/CairoTesting.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

constexpr std::uint32_t kInk = 0xFF102030;

SmartPtr<Stroke> ink(float width) { return pen(0x102030, width); }

SmartPtr<Stroke> dashed(const Vector<float>& lengths, float offset = 0, LineCap cap = LineCap::Butt) {
    const auto stroke = ink(2);
    stroke->setDashArray(lengths);
    stroke->setDashOffset(offset);
    stroke->setStartLineCap(cap);
    return stroke;
}

SmartPtr<Stroke> capped(float width, LineCap cap) {
    const auto stroke = ink(width);
    stroke->setStartLineCap(cap);
    return stroke;
}

SmartPtr<Stroke> joined(LineJoin join, float miterLimit) {
    const auto stroke = ink(4);
    stroke->setLineJoin(join);
    stroke->setMiterLimit(miterLimit);
    return stroke;
}

Drawing stroked(const SmartPtr<Stroke>& stroke, const Drawing& draw) { return painted(nullptr, stroke, draw); }

/// From (4, 10) to (36, 10).
void level(RenderContext& c) { c.drawLine(4, 10, 36, 10); }

/// A right angle at (20, 20); its outer side looks down and to the right.
void corner(RenderContext& c) { c.drawPolygon({{5, 20}, {20, 20}, {20, 5}}, false); }

/// A line of no length at (20, 15).
void point(RenderContext& c) { c.drawPolygon({{20, 15}}, false); }

TEST(StrokePixels, LinesCapsAndJoins) {
    const PixelCase cases[] = {
        {"half of the width on either side",
         stroked(ink(4), level),
         {{4, 8, kInk}, {35, 11, kInk}, {4, 7, 0}, {4, 12, 0}, {3, 10, 0}, {36, 10, 0}}},
        {"square caps reach half a width further",
         stroked(capped(4, LineCap::Square), level),
         {{2, 8, kInk}, {37, 11, kInk}, {1, 10, 0}, {38, 10, 0}}},
        {"round ones too, in the middle: (2, 8) is 2.1 px from the end",
         stroked(capped(8, LineCap::Round), level),
         {{1, 10, kInk}, {0, 6, 0}, {38, 10, kInk}, {39, 13, 0}}},
        {"a point is a dot with round caps",
         stroked(capped(8, LineCap::Round), point),
         {{20, 15, kInk}, {17, 15, kInk}, {21, 17, kInk}, {15, 15, 0}, {16, 11, 0}}},
        {"and nothing with butt ones", stroked(ink(8), point), {{20, 15, 0}, {19, 14, 0}}},
        {"a sharp corner", stroked(joined(LineJoin::Miter, 2), corner), {{21, 21, kInk}}},
        {"a right angle's miter is 1.41 widths long: it is cut at 1.4",
         stroked(joined(LineJoin::Miter, 1.4F), corner),
         {{21, 21, 0}, {20, 20, kInk}}},
        {"a limit that says nothing cuts every corner",
         stroked(joined(LineJoin::Miter, kNaN), corner),
         {{21, 21, 0}, {20, 20, kInk}}},
        {"bevelled: what is beyond x + y = 42 is off",
         stroked(joined(LineJoin::Bevel, 9), corner),
         {{21, 21, 0}, {20, 20, kInk}}},
        {"rounded: of the corner's pixel pi / 3 + 1 - sqrt(3) = 0.315 lies within 2 px",
         stroked(joined(LineJoin::Round, 9), corner),
         {{21, 21, 0x50102030}, {20, 20, kInk}},
         8},
        {"a stroke grows with its transform, more in one direction",
         stroked(ink(2),
                 [](auto& c) {
                     c.addScaleTransform(1, 4);
                     c.drawRectangle(10, 3, 20, 3, 0, 0);
                 }),
         {{9, 10, kInk}, {10, 15, kInk}, {11, 18, 0}, {20, 8, kInk}, {20, 15, kInk}, {20, 7, 0}, {8, 10, 0}}},
        {"without a width", stroked(ink(0), level), {{10, 10, 0}, {10, 9, 0}}},
        {"a rectangle without height is a line",
         stroked(ink(2), [](auto& c) { c.drawRectangle(5, 10, 20, 0, 0, 0); }),
         {{5, 9, kInk}, {24, 10, kInk}, {15, 11, 0}}},
        {"wider than all", stroked(ink(1e30F), level), {{4, 0, kInk}, {35, 29, kInk}, {3, 10, 0}}},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

TEST(StrokePixels, Dashes) {
    const PixelCase cases[] = {
        {"4 on, 2 off, from the start",
         stroked(dashed({4, 2}), level),
         {{4, 10, kInk}, {7, 10, kInk}, {8, 10, 0}, {9, 10, 0}, {10, 10, kInk}, {13, 10, kInk}, {14, 10, 0}}},
        {"an offset of 3 starts with its last one",
         stroked(dashed({4, 2}, 3), level),
         {{4, 10, kInk}, {5, 10, 0}, {6, 10, 0}, {7, 10, kInk}, {10, 10, kInk}, {11, 10, 0}}},
        {"backwards", stroked(dashed({4, 2}, -1), level), {{4, 10, 0}, {5, 10, kInk}, {8, 10, kInk}, {9, 10, 0}}},
        {"an odd pattern turns about",
         stroked(dashed({3}), level),
         {{4, 10, kInk}, {6, 10, kInk}, {7, 10, 0}, {9, 10, 0}, {10, 10, kInk}}},
        {"dashes grow with the transform",
         stroked(dashed({4, 2}),
                 [](auto& c) {
                     c.addScaleTransform(2, 1);
                     c.drawLine(0, 10, 20, 10);
                 }),
         {{0, 10, kInk}, {7, 10, kInk}, {8, 10, 0}, {11, 10, 0}, {12, 10, kInk}}},
        {"dashes of no length are dots with square caps",
         stroked(dashed({0, 6}, 0, LineCap::Square), level),
         {{3, 10, kInk}, {4, 9, kInk}, {5, 10, 0}, {8, 10, 0}, {9, 10, kInk}, {10, 10, kInk}, {11, 10, 0}}},
        {"an offset that is no number is none",
         stroked(dashed({4, 2}, kInfinity), level),
         {{4, 10, kInk}, {8, 10, 0}, {10, 10, kInk}}},
        {"a pattern of nothing is a line", stroked(dashed({0, 0}), level), {{4, 10, kInk}, {20, 10, kInk}}},
        {"too fine to be seen, half of it is half as dark",
         stroked(dashed({1e-6F, 1e-6F}), level),
         {{10, 10, 0x80102030}},
         20},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

}  // namespace
}  // namespace VEXA
