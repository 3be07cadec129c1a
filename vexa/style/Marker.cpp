#include "vexa/style/Marker.h"

#include <cmath>

namespace VEXA {

namespace {

void drawSquare(VexaRenderContext& context, PointF origin, float size) {
    const LengthOrPercent side{Length(size)};
    context.drawRectangle(Length(origin.x), Length(origin.y), side, side, LengthOrPercent(), LengthOrPercent());
}

void drawDash(VexaRenderContext& context, PointF origin, float size) {
    const Length middle(origin.y + size / 2);
    context.drawLine(Length(origin.x), middle, Length(origin.x + size), middle);
}

void drawCircle(VexaRenderContext& context, PointF origin, float size) {
    const float radius = size / 2;
    context.drawEllipse(Length(origin.x + radius), Length(origin.y + radius), LengthOrPercent(Length(radius)));
}

void drawTriangle(VexaRenderContext& context, PointF origin, float size) {
    const auto foot = static_cast<float>(origin.y + size * std::sqrt(3.0) / 2);  // the height of equal sides
    context.drawPolygon({{origin.x + size / 2, origin.y}, {origin.x + size, foot}, {origin.x, foot}}, /*closed*/ true);
}

void drawDiamond(VexaRenderContext& context, PointF origin, float size) {
    const PointF middle{origin.x + size / 2, origin.y + size / 2};
    context.drawPolygon(
        {{origin.x, middle.y}, {middle.x, origin.y}, {origin.x + size, middle.y}, {middle.x, origin.y + size}},
        /*closed*/ true);
}

}  // namespace

bool drawMarker(VexaRenderContext& context, MarkerType type, PointF origin, float size) {
    switch (type) {
        case MarkerType::None:
            return true;
        case MarkerType::Square:
            drawSquare(context, origin, size);
            return true;
        case MarkerType::Dash:
            drawDash(context, origin, size);
            return true;
        case MarkerType::Circle:
            drawCircle(context, origin, size);
            return true;
        case MarkerType::Triangle:
            drawTriangle(context, origin, size);
            return true;
        case MarkerType::Diamond:
            drawDiamond(context, origin, size);
            return true;
    }
    return false;
}

}  // namespace VEXA
