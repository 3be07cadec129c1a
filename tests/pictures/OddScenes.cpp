#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

namespace {

void everyShape(RenderContext& c) {
    c.setFont(fontOf("sans-serif", 20));
    c.drawLine(5, 5, 55, 35);
    c.drawRectangle(5, 5, 20, 20, 0, 0);
    c.drawEllipse(40, 15, 10, 10);
    c.drawPolygon({{5, 35}, {30, 10}, {55, 35}}, true);
    c.drawText("Ab", 2, 30, 30, 0, 0);
}

Drawing shapesUnder(const Matrix& matrix) {
    return painted(solid(0xE08020), pen(0x204080, 3), under(matrix, everyShape));
}

/// Shapes with `number` among their coordinates.
Drawing astray(float number) {
    return painted(solid(0xE08020), pen(0x204080, 3), [=](RenderContext& c) {
        c.setFont(fontOf("sans-serif", 20));
        c.drawLine(5, 5, 55, number);
        c.drawRectangle(5, number, 20, 20, 0, 0);
        c.drawEllipse(40, 15, number, 10);
        c.drawPolygon({{5, 35}, {number, 10}, {55, 35}}, true);
        c.drawText("Ab", 2, number, 30, 0, 0);
    });
}

Drawing withinAstray(const Drawing& draw) {
    return painted(solid(0xE08020), pen(0x204080, 3), [=](RenderContext& c) {
        c.setClip(PathCommand::polygon({{5, 35}, {kNaN, 10}, {55, 35}}, true));
        draw(c);
    });
}

SmartPtr<Brush> colorless() {
    const SmartPtr<GradientBrush> brush =
        make<LinearGradientBrush>(0.0F, 0.0F, 1.0F, 0.0F, GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Pad);
    brush->addStop(0, nullptr, 1);
    return brush;
}

Scene blank(const char* name, const Drawing& draw) { return {name, draw, {}, {60, 40}, true}; }

Drawing inOpacity(float opacity, float width) {
    return painted(solid(0xE08020, opacity), make<Stroke>(solid(0x204080, opacity), width),
                   [](RenderContext& c) { c.drawRectangle(10, 8, 40, 24, 0, 0); });
}

/// Shapes that reach far beyond the page.
Drawing reaching(float far, float y = 20) {
    return painted(solid(0xE08020), pen(0x204080, 4), [=](RenderContext& c) {
        c.drawRectangle(30, -far, far, 2 * far, 0, 0);
        c.drawLine(-far, y, far, y);
        c.drawPolygon({{0, 0}, {20, 0}, {10, far}}, true);
    });
}

}  // namespace

std::vector<Scene> oddScenes() {
    const float huge = 1e30F;
    return {
        blank("at the start nothing is painted", everyShape),
        blank("brushes without a colour", painted(make<SolidColorBrush>(nullptr), pen(0, 0), everyShape)),
        blank("gradients without a colour", painted(colorless(), make<Stroke>(colorless(), 2.0F), everyShape)),
        blank("a stroke without a brush", painted(nullptr, make<Stroke>(nullptr, 2.0F), everyShape)),
        blank("a thickness below zero", painted(nullptr, pen(0, -2), everyShape)),
        blank("a thickness that is no number", painted(nullptr, pen(0, kNaN), everyShape)),
        blank("opacity zero", painted(solid(0, 0), make<Stroke>(solid(0, 0), 2.0F), everyShape)),
        blank("opacity below zero", painted(solid(0, -1), make<Stroke>(solid(0, -1), 2.0F), everyShape)),
        blank("scaled to nothing", shapesUnder(Matrix().scale(0, 0))),
        blank("scaled to a line", shapesUnder(Matrix().translate(0, 20).scale(1, 0))),
        blank("a place that is no number", shapesUnder(Matrix(1, 0, 0, 1, kNaN, 0))),
        blank("a place without end", shapesUnder(Matrix(1, 0, 0, 1, 0, kInfinity))),
        blank("beyond all coordinates", shapesUnder(Matrix(1, 0, 0, 1, huge, huge))),
        blank("coordinates that are no number", astray(kNaN)),
        blank("coordinates without end", astray(kInfinity)),
        blank("a clip with a corner that is no number", withinAstray(everyShape)),
        {"an opacity above one", inOpacity(3, 4), inOpacity(0.9F, 4)},
        {"an opacity that is no number", inOpacity(kNaN, 6), inOpacity(0.9F, 6)},
        {"shapes that leave it by far", reaching(1e6F), reaching(1e6F, 20.6F)},
    };
}

}  // namespace VEXA::Testing
