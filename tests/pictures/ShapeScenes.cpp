#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

namespace {

Drawing filled(const Drawing& draw) { return painted(solid(0xE08020), nullptr, draw); }
Drawing outlined(const Drawing& draw, float width = 3) { return painted(nullptr, pen(0x204080, width), draw); }
Drawing both(const Drawing& draw) { return painted(solid(0xE08020), pen(0x204080, 3), draw); }

Drawing box(float x, float y, float width, float height, float rx = 0, float ry = 0) {
    return [=](RenderContext& c) { c.drawRectangle(x, y, width, height, rx, ry); };
}

Drawing oval(float cx, float cy, float rx, float ry) {
    return [=](RenderContext& c) { c.drawEllipse(cx, cy, rx, ry); };
}

/// A pentagram: the even-odd rule leaves its middle free.
Drawing star(bool closed, float tip = 4) {
    return [=](RenderContext& c) { c.drawPolygon({{30, tip}, {40, 36}, {13, 16}, {47, 16}, {20, 36}}, closed); };
}

Drawing ofPath(const SmartPtr<Path>& path) {
    return [path](RenderContext& c) { c.drawPath(path); };
}

/// Two boxes that run the same way round; the inner one is a hole.
SmartPtr<Path> frame(float inner) {
    const SmartPtr<Path> path = make<Path>();
    path->moveTo({8, 5}).lineTo({52, 5}).lineTo({52, 35}).lineTo({8, 35}).close();
    path->moveTo({inner, 12}).lineTo({44, 12}).lineTo({44, 28}).lineTo({inner, 28}).close();
    return path;
}

SmartPtr<Path> leaf(float bend) {
    const SmartPtr<Path> path = make<Path>();
    path->moveTo({6, 34}).curveTo({10, bend}, {40, -10}, {54, 8}).curveTo({50, 30}, {30, 40}, {6, 34});
    return path;
}

/// A lone point, and a line that goes on from where a closed part began.
SmartPtr<Path> goneOn(float x) {
    const SmartPtr<Path> path = make<Path>();
    path->moveTo({50, 6}).moveTo({10, 8}).lineTo({30, 8}).lineTo({30, 24}).close().lineTo({x, 34});
    return path;
}

Drawing overlapping(float opacity) {
    return [=](RenderContext& c) {
        c.setFill(solid(0xE00000, opacity));
        c.drawEllipse(24, 20, 16, 15);
        c.setFill(solid(0x0000E0, opacity));
        c.setStroke(make<Stroke>(solid(0, opacity), 4.0F));
        c.drawRectangle(28, 8, 24, 24, 0, 0);
    };
}

Drawing turned(float degrees) {
    return both([=](RenderContext& c) {
        c.addTranslateTransform(30, 20);
        c.addRotateTransform(degrees);
        c.addScaleTransform(1.5F, 0.75F);
        c.drawRectangle(-12, -10, 24, 20, 0, 0);
    });
}

Drawing skewed(float x) { return both(under(Matrix().translate(22, 10).shear(x, 0), oval(8, 8, 12, 8))); }

}  // namespace

std::vector<Scene> shapeScenes() {
    return {
        {"a rectangle between pixels", filled(box(10.3F, 7.6F, 38.2F, 22.9F)), filled(box(10.3F, 7.6F, 38.2F, 23.4F))},
        {"a rectangle and its outline", both(box(10, 8, 40, 24)), both(box(10, 8, 39.5F, 24))},
        {"an outline", outlined(box(10, 8, 40, 24)), outlined(box(10, 8, 40, 24), 3.8F)},
        {"rounded corners", both(box(10, 8, 40, 24, 12, 6)), both(box(10, 8, 40, 24, 8, 6))},
        {"corners rounder than the sides", both(box(10, 8, 40, 24, 90, 90)), both(box(10, 8, 40, 24, 12, 12))},
        {"one radius rounds nothing", both(box(9, 8, 40, 24, 9, 0)), both(box(9, 8, 40, 24, 9, 4))},
        {"sizes below zero", both(box(51, 33, -40, -24)), both(box(51, 32.5F, -40, -24))},
        {"no width: a line", both(box(20, 8, 0, 24)), both(box(20.5F, 8, 0, 24))},
        {"no height: a line", both(box(10, 20, 40, 0)), both(box(10, 20, 39, 0))},
        {"no width has no inside", filled(box(20, 8, 0, 24)), {}, {60, 40}, true},
        {"an ellipse", both(oval(30, 20, 22, 12)), both(oval(30, 20, 22, 12.6F))},
        {"radii below zero", both(oval(30, 20, -20, -14)), both(oval(30, 20, -20, -14.6F))},
        {"a flat ellipse", both(oval(30, 26, 20, 0)), both(oval(30, 26, 18, 0))},
        {"a closed star is filled by the even-odd rule", both(star(true)), both(star(false))},
        {"an open star is only stroked", both(star(false)), both(star(false, 6))},
        {"a hole", filled(ofPath(frame(16))), filled(ofPath(frame(16.5F)))},
        {"an open path is closed for filling", both(ofPath(leaf(0))), both(ofPath(leaf(4)))},
        {"a path goes on behind a close", both(ofPath(goneOn(50))), both(ofPath(goneOn(48)))},
        {"translucent shapes, their outlines upon them", overlapping(0.5F), overlapping(0.55F)},
        {"turned, then scaled", turned(30), turned(32)},
        {"skewed", skewed(0.6F), skewed(0.5F)},
    };
}

}  // namespace VEXA::Testing
