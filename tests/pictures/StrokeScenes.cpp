#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

namespace {

constexpr std::uint32_t kInk = 0x204080;

Drawing inStroke(const SmartPtr<Stroke>& stroke, const Drawing& draw) { return painted(nullptr, stroke, draw); }

SmartPtr<Stroke> capped(LineCap cap, float width) {
    const SmartPtr<Stroke> stroke = pen(kInk, width);
    stroke->setStartLineCap(cap);
    stroke->setEndLineCap(cap);
    return stroke;
}

Drawing lines(LineCap cap, float width = 8) {
    return inStroke(capped(cap, width), [](RenderContext& c) {
        c.drawLine(12, 9, 48, 9);
        c.drawLine(15, 33, 45, 21);
    });
}

/// A line, an open and a closed polygon without length.
Drawing points(LineCap cap, float width = 12) {
    return inStroke(capped(cap, width), [](RenderContext& c) {
        c.drawLine(12, 20, 12, 20);
        c.drawPolygon({{30, 20}}, false);
        c.drawPolygon({{48, 20}}, true);
    });
}

/// The sharp corner is 2.4 times as long as the stroke is wide, the blunt one 1.3 times.
Drawing corners(LineJoin join, float miterLimit = 4, float width = 7) {
    const SmartPtr<Stroke> stroke = pen(kInk, width);
    stroke->setLineJoin(join);
    stroke->setMiterLimit(miterLimit);
    return inStroke(stroke, [](RenderContext& c) { c.drawPolygon({{8, 34}, {20, 12}, {32, 34}, {52, 28}}, false); });
}

SmartPtr<Stroke> dashed(const Vector<float>& dashes, float offset, LineCap cap = LineCap::Butt) {
    const SmartPtr<Stroke> stroke = capped(cap, 4);
    stroke->setDashArray(dashes);
    stroke->setDashOffset(offset);
    return stroke;
}

/// The outline ends between two dashes: renderers do not agree whether a last dash is joined to the first.
Drawing dashes(const Vector<float>& array, float offset, LineCap cap = LineCap::Butt) {
    return inStroke(dashed(array, offset, cap), [](RenderContext& c) {
        c.drawLine(5, 6, 55, 6);
        c.drawRectangle(8, 14, 44, 19.25F, 0, 0);
    });
}

Drawing underScale(float x, float y) {
    return inStroke(pen(kInk, 3), [=](RenderContext& c) {
        c.addTranslateTransform(30, 20);
        c.addScaleTransform(x, y);
        c.drawEllipse(0, 0, 8, 8);
    });
}

Drawing inGradient(const SmartPtr<Brush>& brush) {
    return inStroke(make<Stroke>(brush, 6.0F), [](RenderContext& c) {
        c.drawRectangle(8, 6, 30, 12, 0, 0);
        c.drawLine(8, 24, 52, 35);
    });
}

Drawing translucent(float opacity) {
    return inStroke(make<Stroke>(solid(kInk, opacity), 10.0F), [](RenderContext& c) {
        c.drawPolygon({{8, 30}, {30, 10}, {52, 30}, {30, 30}, {30, 6}}, false);
        c.drawLine(4, 20, 56, 20);
    });
}

}  // namespace

std::vector<Scene> strokeScenes() {
    return {
        {"butt caps", lines(LineCap::Butt), lines(LineCap::Butt, 9)},
        {"round caps", lines(LineCap::Round), lines(LineCap::Round, 9)},
        {"square caps", lines(LineCap::Square), lines(LineCap::Square, 7)},
        {"points with round caps", points(LineCap::Round), points(LineCap::Round, 11)},
        {"points with square caps", points(LineCap::Square), {}, {60, 40}, true},
        {"miter joins", corners(LineJoin::Miter), corners(LineJoin::Miter, 2)},
        {"the limit cuts sharp corners", corners(LineJoin::Miter, 2), corners(LineJoin::Miter, 1)},
        {"round joins", corners(LineJoin::Round), corners(LineJoin::Bevel)},
        {"bevel joins", corners(LineJoin::Bevel), corners(LineJoin::Bevel, 4, 8)},
        {"dashes", dashes({6, 4}, 0), dashes({6, 4}, 1)},
        {"dashes from an offset", dashes({6, 4}, 3), dashes({6, 4}, 4)},
        {"dashes from an offset below zero", dashes({6, 4}, -3), dashes({6, 4}, -2)},
        {"an odd number of dashes", dashes({7, 2, 3}, 2), dashes({7, 2, 3, 0}, 2)},
        {"dashes with round caps", dashes({0, 8}, 0, LineCap::Round), dashes({0, 9}, 0, LineCap::Round)},
        {"dashes with square caps", dashes({3, 9}, 0, LineCap::Square), dashes({3, 9}, 0, LineCap::Round)},
        {"a dash below zero stands for none", dashes({6, -4}, 0), dashes({6, 4}, 0)},
        {"a stroke widens with its transform", underScale(3, 1), underScale(3.1F, 1)},
        {"strokes in a gradient over the box of the shape", inGradient(redToBlue()),
         inGradient(redToBlue(GradientUnits::UserSpaceOnUse))},
        {"a stroke that crosses itself is one stroke", translucent(0.5F), translucent(0.6F)},
    };
}

}  // namespace VEXA::Testing
