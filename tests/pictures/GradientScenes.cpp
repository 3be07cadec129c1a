#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

namespace {

using enum GradientUnits;
using Spread = GradientSpreadMethod;

constexpr Matrix kAsItIs;

SmartPtr<GradientBrush> withStops(const SmartPtr<GradientBrush>& brush) {
    brush->addStop(0, colorOf(0xE00000), 1);
    brush->addStop(0.5F, colorOf(0xF0E040), 1);
    brush->addStop(1, colorOf(0x0000E0), 1);
    return brush;
}

SmartPtr<GradientBrush> moved(const SmartPtr<GradientBrush>& brush, const Matrix& matrix) {
    const auto& [a, b, c, d, e, f] = matrix.getElements();
    brush->addMatrixTransform(a, b, c, d, e, f);
    return brush;
}

SmartPtr<GradientBrush> linear(PointF from, PointF to, GradientUnits units, Spread spread = Spread::Pad,
                               const Matrix& matrix = kAsItIs) {
    return moved(withStops(make<LinearGradientBrush>(from.x, from.y, to.x, to.y, units, spread)), matrix);
}

SmartPtr<GradientBrush> radial(PointF centre, SizeF radii, GradientUnits units, Spread spread = Spread::Pad,
                               const Matrix& matrix = kAsItIs) {
    return moved(withStops(make<RadialGradientBrush>(centre.x, centre.y, radii.width, radii.height, units, spread)),
                 matrix);
}

Drawing inBox(const SmartPtr<Brush>& brush) {
    return painted(brush, nullptr, [](RenderContext& c) { c.drawRectangle(4, 6, 52, 28, 0, 0); });
}

Drawing inBox(const SmartPtr<Brush>& brush, float opacity) {
    brush->setOpacity(opacity);
    return inBox(brush);
}

Drawing inCircle(const SmartPtr<Brush>& brush) {
    return painted(brush, nullptr, [](RenderContext& c) { c.drawEllipse(30, 20, 18, 18); });
}

/// One gradient on three shapes: in units of the box it begins anew on each.
Drawing onThree(const SmartPtr<Brush>& brush) {
    return painted(brush, nullptr, [](RenderContext& c) {
        c.drawRectangle(2, 4, 16, 32, 0, 0);
        c.drawEllipse(30, 20, 9, 16);
        c.drawPolygon({{42, 36}, {50, 4}, {58, 36}}, true);
    });
}

Drawing turned(float degrees, const SmartPtr<Brush>& brush) {
    return painted(brush, nullptr, [=](RenderContext& c) {
        c.addTranslateTransform(30, 20);
        c.addRotateTransform(degrees);
        c.addScaleTransform(1.5F, 1.25F);
        c.drawRectangle(-12, -10, 24, 20, 0, 0);
    });
}

SmartPtr<GradientBrush> fading(float opacity) {
    const SmartPtr<GradientBrush> brush =
        make<LinearGradientBrush>(0.0F, 0.0F, 1.0F, 0.0F, ObjectBoundingBox, Spread::Pad);
    brush->addStop(0.2F, colorOf(0x800080), 1);
    brush->addStop(0.8F, colorOf(0x800080), opacity);
    return brush;
}

SmartPtr<GradientBrush> ofStops(const Vector<StopPoint>& stops, float end = 1, Spread spread = Spread::Pad) {
    const SmartPtr<GradientBrush> brush = make<LinearGradientBrush>(0.0F, 0.0F, end, 0.0F, ObjectBoundingBox, spread);
    brush->setStops(stops);
    return brush;
}

/// Plain colours from both ends of the gradient to its two stops; four times over the box.
SmartPtr<GradientBrush> between(float from, float to) {
    return ofStops({{from, colorOf(0xE00000), 1}, {to, colorOf(0x0000E0), 1}}, 0.25F, Spread::Repeat);
}

/// The middle colour ends where the last begins.
SmartPtr<GradientBrush> step(float at) {
    return ofStops({{0, colorOf(0xE00000), 1}, {at, colorOf(0xE0E000), 1}, {at, colorOf(0x0000E0), 1}});
}

Drawing flatBoxes(std::uint32_t end) {
    return painted(nullptr, make<Stroke>(ofStops({{0, colorOf(0), 1}, {1, colorOf(end), 1}}), 6.0F),
                   [](RenderContext& c) {
                       c.drawLine(6, 10, 54, 10);
                       c.drawRectangle(10, 18, 0, 18, 0, 0);
                       c.drawPolygon({{20, 26}, {54, 26}}, false);
                   });
}

}  // namespace

std::vector<Scene> gradientScenes() {
    const Matrix quarterTurn = Matrix().rotateAt(90, {0.5F, 0.5F});
    const Matrix shrunk = Matrix().translate(20, 10).scale(0.5F, 0.5F);
    return {
        {"linear, aslant in a box that is no square", inBox(linear({0, 0}, {1, 1}, ObjectBoundingBox)),
         inBox(linear({4, 6}, {56, 34}, UserSpaceOnUse))},
        {"linear over the page", onThree(linear({2, 0}, {58, 0}, UserSpaceOnUse)),
         onThree(linear({2, 4}, {58, 8}, UserSpaceOnUse))},
        {"linear over each box", onThree(linear({0, 0}, {0, 1}, ObjectBoundingBox)),
         onThree(linear({0, 0}, {0, 0.9F}, ObjectBoundingBox))},
        {"linear, repeated", inBox(linear({0, 0}, {0.25F, 0}, ObjectBoundingBox, Spread::Repeat)),
         inBox(linear({0, 0}, {0.24F, 0}, ObjectBoundingBox, Spread::Repeat))},
        {"linear, turned by its matrix", inBox(linear({0, 0}, {1, 0}, ObjectBoundingBox, Spread::Pad, quarterTurn)),
         inBox(linear({0, 0}, {0, 0.9F}, ObjectBoundingBox))},
        {"linear over the page, by a matrix", inBox(linear({0, 0}, {40, 40}, UserSpaceOnUse, Spread::Reflect, shrunk)),
         inBox(linear({0, 0}, {34, 40}, UserSpaceOnUse, Spread::Reflect, shrunk))},
        {"linear, turned with its shape", turned(90, linear({0, 0}, {1, 1}, ObjectBoundingBox)),
         turned(90, linear({0, 0}, {1, 0.8F}, ObjectBoundingBox))},
        {"linear over the page, turned", turned(25, linear({-12, -10}, {12, 0}, UserSpaceOnUse)),
         turned(25, linear({-12, -10}, {12, 2}, UserSpaceOnUse))},
        {"radial in a box that is no square", inBox(radial({0.5F, 0.5F}, {0.5F, 0.5F}, ObjectBoundingBox)),
         inBox(radial({30, 20}, {20, 20}, UserSpaceOnUse))},
        {"radial, reflected", inBox(radial({30, 20}, {10, 10}, UserSpaceOnUse, Spread::Reflect)),
         inBox(radial({30, 20}, {10, 9.5F}, UserSpaceOnUse, Spread::Reflect))},
        {"radial by a matrix", inBox(radial({20, 20}, {20, 20}, UserSpaceOnUse, Spread::Pad, shrunk)),
         inBox(radial({20, 20}, {22, 20}, UserSpaceOnUse, Spread::Pad, shrunk))},
        {"radial over the page, turned", turned(25, radial({-4, 0}, {8, 12}, UserSpaceOnUse)),
         turned(25, radial({-4, 0}, {8, 11}, UserSpaceOnUse))},
        {"a gradient that is translucent", inBox(fading(0.5F), 0.6F), inBox(fading(0.5F), 0.66F)},
        {"a hard step between colours", inBox(step(0.5F)), inBox(step(0.52F))},
        {"repeated, with stops off its ends", inBox(between(0.25F, 0.75F)), inBox(between(0.25F, 0.9F))},
        {"one stop is a colour", inBox(ofStops({{0.5F, colorOf(0x208040), 0.5F}})),
         inBox(ofStops({{0.5F, colorOf(0x208040), 0.6F}}))},
        {"stops without a colour do not count",
         inBox(ofStops({{0, colorOf(0xE00000), 1}, {0.1F, nullptr, 1}, {1, colorOf(0x00E000), 1}})),
         inBox(ofStops({{0, colorOf(0xE00000), 1}, {0.1F, colorOf(0), 1}, {1, colorOf(0x00E000), 1}}))},
        {"from a point to itself it is the last stop", inBox(linear({0.5F, 0}, {0.5F, 0}, ObjectBoundingBox)),
         inBox(linear({0, 0}, {0.9F, 0}, ObjectBoundingBox))},
        {"a matrix that flattens leaves the last stop",
         inCircle(radial({0.5F, 0.5F}, {0.5F, 0.5F}, ObjectBoundingBox, Spread::Pad, Matrix().scale(0, 0))),
         inCircle(solid(0x1818D0))},
        {"over a flat box it is the last stop", flatBoxes(0xE00000), flatBoxes(0xC00000)},
    };
}

}  // namespace VEXA::Testing
