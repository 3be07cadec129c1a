#include <cmath>

#include "tests/cairo/CairoTesting.h"
#include "vexa/surfaces/cairo/DashBudget.h"

// Caps, joins and dashes are compared with another renderer in tests/pictures; here is what only pixels tell.

namespace VEXA {
namespace {

using namespace CairoTesting;

constexpr std::uint32_t kInk = 0xFF102030;

SmartPtr<Stroke> ink(float width, LineCap cap = LineCap::Butt, LineJoin join = LineJoin::Miter, float miterLimit = 2) {
    const auto stroke = pen(0x102030, width);
    stroke->setStartLineCap(cap);
    stroke->setLineJoin(join);
    stroke->setMiterLimit(miterLimit);
    return stroke;
}

SmartPtr<Stroke> dashed(const Vector<float>& lengths, float offset = 0) {
    const auto stroke = ink(2);
    stroke->setDashArray(lengths);
    stroke->setDashOffset(offset);
    return stroke;
}

Drawing stroked(const SmartPtr<Stroke>& stroke, const Drawing& draw) { return painted(nullptr, stroke, draw); }

Drawing alongPath(const SmartPtr<Stroke>& stroke, const SmartPtr<Path>& path) {
    return stroked(stroke, [=](RenderContext& c) { c.drawPath(path); });
}

/// From (4, 10) to (36, 10).
void level(RenderContext& c) { c.drawLine(4, 10, 36, 10); }

/// The same in so many steps that it is drawn in pieces.
SmartPtr<Path> levelInSteps() {
    const auto path = make<Path>();
    for (int step = 0; step <= 320; ++step) path->lineTo({4 + static_cast<float>(step) / 10, 10});
    return path;
}

/// A right angle at (20, 20); its outer side looks down and to the right.
void corner(RenderContext& c) { c.drawPolygon({{5, 20}, {20, 20}, {20, 5}}, false); }

TEST(StrokePixels, LinesAndDashes) {
    const PixelCase cases[] = {
        {"half of the width on either side",
         stroked(ink(4), level),
         {{4, 8, kInk}, {35, 11, kInk}, {4, 7, 0}, {4, 12, 0}, {3, 10, 0}, {36, 10, 0}}},
        {"square caps reach half a width further, of pieces as well",
         alongPath(ink(4, LineCap::Square), levelInSteps()),
         {{2, 8, kInk}, {37, 11, kInk}, {1, 10, 0}, {38, 10, 0}}},
        {"a right angle's miter is 1.41 widths long: it is cut at 1.4",
         stroked(ink(4, LineCap::Butt, LineJoin::Miter, 1.4F), corner),
         {{21, 21, 0}, {20, 20, kInk}}},
        {"a limit that says nothing cuts every corner",
         stroked(ink(4, LineCap::Butt, LineJoin::Miter, kNaN), corner),
         {{21, 21, 0}, {20, 20, kInk}}},
        {"without a width", stroked(ink(0), level), {{10, 10, 0}, {10, 9, 0}}},
        {"wider than all", stroked(ink(1e30F), level), {{4, 0, kInk}, {35, 29, kInk}, {3, 10, 0}}},
        {"dashes grow with the transform",
         stroked(dashed({4, 2}),
                 [](auto& c) {
                     c.addScaleTransform(2, 1);
                     c.drawLine(0, 10, 20, 10);
                 }),
         {{0, 10, kInk}, {7, 10, kInk}, {8, 10, 0}, {11, 10, 0}, {12, 10, kInk}}},
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

/// So many points that they are drawn in pieces; `close` makes a web of them.
SmartPtr<Path> wave(int points, bool close) {
    const auto path = make<Path>();
    for (int i = 0; i < points; ++i) {
        const double t = i * 6.2831853 / points;
        path->lineTo({static_cast<float>(60 + 50 * std::cos(t) * (0.7 + 0.3 * std::cos(40 * t))),
                      static_cast<float>(60 + 50 * std::sin(t) * (0.7 + 0.3 * std::cos(40 * t)))});
    }
    if (close) path->close();
    return path;
}

/// The same with an outline beside the page that has a curve, which keeps it whole.
SmartPtr<Path> whole(const SmartPtr<Path>& path) {
    const auto result = make<Path>(*path);
    result->moveTo({-900, -900}).curveTo({-800, -900}, {-800, -800}, {-900, -900});
    return result;
}

/// Of the ink of both pictures, how much is not in the same place.
double differenceOf(const Picture& a, const Picture& b) {
    double ink = 0;
    double different = 0;
    for (int i = 0; i < a.width * a.height; ++i) {
        const int first = a.alphaAt(i % a.width, i / a.width);
        const int second = b.alphaAt(i % a.width, i / a.width);
        ink += first + second;
        different += std::abs(first - second);
    }
    return different / ink;
}

TEST(StrokePixels, LongLinesLookAsIfDrawnInOnePiece) {
    struct Case {
        const char* why;
        SmartPtr<Stroke> stroke;
        bool closed;
    };
    const auto faint = make<Stroke>(solid(0x102030, 0.5F), 5.0F);
    faint->setLineJoin(LineJoin::Round);
    const auto square = ink(5, LineCap::Square);
    const Case cases[] = {
        {"thin, closed", ink(1), true},           {"thin, open", ink(1), false},
        {"overlaps are not darker", faint, true}, {"dashes go on from piece to piece", dashed({7, 3, 2, 3}, 2), true},
        {"caps only at the ends", square, false},
    };
    for (const auto& [why, stroke, closed] : cases) {
        const auto path = wave(1000, closed);
        const Picture inPieces = drawn(alongPath(stroke, path), {}, {120, 120});
        const Picture inOne = drawn(alongPath(stroke, whole(path)), {}, {120, 120});
        EXPECT_LE(differenceOf(inPieces, inOne), 0.01) << why;
    }
}

TEST(StrokePixels, WhatWouldTakeForeverIsDrawnAllTheSame) {
    const auto noise = make<Path>();
    unsigned random = 1;
    for (int i = 0; i < 50'000; ++i) {
        random = random * 1664525 + 1013904223;
        noise->lineTo({static_cast<float>(i) / 1250, static_cast<float>(random >> 16U) / 2200});
    }
    const PixelCase cases[] = {
        {"a long line of noise", alongPath(ink(2, LineCap::Butt, LineJoin::Round), noise), {{20, 10, kInk}}},
        {"1e6 dashes within reach of each line",
         stroked(dashed({1, 1}),
                 [](auto& c) {
                     for (int line = 0; line < 2000; ++line) c.drawLine(0, 10, 1e9F, 10);
                 }),
         {{20, 10, kInk}}},
    };
    for (const PixelCase& c : cases) expectPixels(c);
}

TEST(Limits, Dashes) {
    DashBudget page;
    page.renew();
    EXPECT_EQ(page.stretchOf(100'000), 1) << "as many as an outline may have";
    EXPECT_EQ(page.stretchOf(250'000), 2.5) << "longer ones take the place of more";
    for (int i = 0; i < 7; ++i) EXPECT_EQ(page.stretchOf(100'000), 1) << i;
    EXPECT_EQ(page.stretchOf(60'000), 1);
    EXPECT_EQ(page.stretchOf(100'000), 2.5) << "40,000 are left of a million";
    EXPECT_EQ(page.stretchOf(1), 0) << "none is left";
    page.renew();
    EXPECT_EQ(page.stretchOf(1), 1) << "on the next page";
}

}  // namespace
}  // namespace VEXA
