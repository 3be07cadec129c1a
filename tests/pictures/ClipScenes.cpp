#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

namespace {

SmartPtr<Path> box(float x, float y, float width, float height) {
    return PathCommand::rectangle(x, y, width, height, 0, 0);
}

/// Over the whole page, so that the clip alone says what shows.
void fillPage(RenderContext& c) {
    c.setFill(solid(0xE08020));
    c.drawRectangle(-100, -100, 300, 300, 0, 0);
}

/// With a line across it. Where a clip cuts both between pixels, some of the fill shines through the line.
void paintPage(RenderContext& c) {
    fillPage(c);
    c.setStroke(pen(0x204080, 4));
    c.drawLine(-20, 60, 80, -30);
}

Drawing through(const SmartPtr<Path>& path, void (*paint)(RenderContext&) = fillPage) {
    return [=](RenderContext& c) {
        c.setClip(path);
        paint(c);
    };
}

Drawing throughStar(float tip) {
    return through(PathCommand::polygon({{30, tip}, {40, 36}, {13, 16}, {47, 16}, {20, 36}}, true));
}

/// Each clip under a transform of its own; what is drawn within has a third one.
Drawing nested(float degrees, float scale) {
    return [=](RenderContext& c) {
        c.addTranslateTransform(30, 20);
        c.addRotateTransform(degrees);
        c.setClip(box(-20, -12, 40, 24));
        c.addRotateTransform(-degrees);
        c.addScaleTransform(scale, 1);
        c.setClip(PathCommand::ellipse(0, 0, 10, 16));
        c.addTranslateTransform(-30, -20);
        fillPage(c);
    };
}

Drawing ofText(float width) {
    return [=](RenderContext& c) {
        c.setClip(box(6, 8, width, 20));
        c.setFill(solid(0x204080));
        c.setFont(fontOf("sans-serif", 24));
        c.drawText("Clipped", 7, 2, 30, 0, 0);
    };
}

/// Three shapes: within both clips, within the outer one, within none.
Drawing leftInTurn(float outerEnd) {
    return [=](RenderContext& c) {
        const SmartPtr<RenderContext> surface(&c);
        {
            const RenderContextScope outer(surface);
            c.setClip(box(0, 0, outerEnd, 40));
            {
                const RenderContextScope inner(surface);
                c.setClip(box(0, 0, 60, 8));
                c.setFill(solid(0xE00000));
                c.drawEllipse(20, 10, 18, 8);
            }
            c.setFill(solid(0x00A000));
            c.drawRectangle(10, 14, 50, 8, 0, 0);
        }
        c.setFill(solid(0x0000E0));
        c.drawRectangle(10, 26, 45, 8, 0, 0);
    };
}

}  // namespace

std::vector<Scene> clipScenes() {
    return {
        {"a rectangle lets through", through(box(10, 8, 40, 24), paintPage), through(box(10.5F, 8, 40, 24), paintPage)},
        {"its edge may lie between pixels", through(box(10.5F, 8.5F, 39, 23)), through(box(10.5F, 9, 39, 23))},
        {"an ellipse lets through", through(PathCommand::ellipse(30, 20, 24, 14)),
         through(PathCommand::ellipse(30, 20, 24, 13.4F))},
        {"a star lets through by the even-odd rule", throughStar(4), throughStar(5)},
        {"clips within clips, each under its own transform", nested(30, 2), nested(30, 1.9F)},
        {"text is cut", ofText(40), ofText(41), {100, 40}},
        {"clips end with their scopes", leftInTurn(40), leftInTurn(41)},
        {"without a clip all shows", through(nullptr, paintPage), through(box(0.5F, 0, 60, 40), paintPage)},
        {"an empty path lets nothing through", through(make<Path>()), {}, {60, 40}, true},
    };
}

}  // namespace VEXA::Testing
