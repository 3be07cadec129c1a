#include <cmath>

#include "tests/cairo/CairoTesting.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

SmartPtr<Stroke> ink(float width) { return pen(0x102030, width); }

SmartPtr<Stroke> dashed(const Vector<float>& lengths, float offset) {
    const auto stroke = ink(2);
    stroke->setDashArray(lengths);
    stroke->setDashOffset(offset);
    return stroke;
}

SmartPtr<Stroke> capped(float width, LineCap cap) {
    const auto stroke = ink(width);
    stroke->setStartLineCap(cap);
    return stroke;
}

Drawing stroked(const SmartPtr<Stroke>& stroke, const Drawing& draw) { return painted(nullptr, stroke, draw); }

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
    for (int y = 0; y < a.height; ++y) {
        for (int x = 0; x < a.width; ++x) {
            ink += a.alphaAt(x, y) + b.alphaAt(x, y);
            different += std::abs(a.alphaAt(x, y) - b.alphaAt(x, y));
        }
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
    const auto square = capped(5, LineCap::Square);
    const Case cases[] = {
        {"thin, closed", ink(1), true},           {"thin, open", ink(1), false},
        {"overlaps are not darker", faint, true}, {"dashes go on from piece to piece", dashed({7, 3, 2, 3}, 2), true},
        {"caps only at the ends", square, false},
    };
    for (const auto& [why, stroke, closed] : cases) {
        const auto path = wave(1000, closed);
        const auto draw = [](const SmartPtr<Path>& outline) { return [=](RenderContext& c) { c.drawPath(outline); }; };
        const Picture inPieces = drawn(stroked(stroke, draw(path)), {}, {120, 120});
        const Picture inOne = drawn(stroked(stroke, draw(whole(path))), {}, {120, 120});
        EXPECT_LE(differenceOf(inPieces, inOne), 0.01) << why;
    }
}

TEST(CairoSurface, ALongLineOfNoiseIsDrawn) {
    const auto noise = make<Path>();
    unsigned random = 1;
    for (int i = 0; i < 50'000; ++i) {
        random = random * 1664525 + 1013904223;
        noise->lineTo({static_cast<float>(i) / 1250, static_cast<float>(random >> 16U) / 2200});
    }
    const auto stroke = ink(2);
    stroke->setLineJoin(LineJoin::Round);
    expectPixel(drawn(stroked(stroke, [=](auto& c) { c.drawPath(noise); })), 20, 10, 0xFF102030, "covered by it");
}

TEST(CairoSurface, DashesAreBounded) {
    const Drawing lines = stroked(dashed({1, 1}, 0), [](auto& c) {
        for (int line = 0; line < 2000; ++line) c.drawLine(0, 10, 1e9F, 10);  // 1e6 dashes each within reach
    });
    expectPixel(drawn(lines), 20, 10, 0xFF102030, "it is drawn all the same");
}

}  // namespace
}  // namespace VEXA
