#include "vexa/pie/CaptionLayout.h"

#include <cmath>

#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr float kConnectorShift = 7.0F;  // px that a connector moves its caption away from the pie
constexpr float kConnectorGap = 2.0F;    // px between the connector and the text
constexpr float kElbow = 5.0F;           // px of the level part
constexpr float kConnectorHeight = 0.75F;

bool isRight(double clock) noexcept { return clock <= 180; }
bool isLower(double clock) noexcept { return clock > 90 && clock < 270; }

/// The point in the middle of the slice on an ellipse with these radii.
PointF middleAt(const SliceGeometry& slice, double rx, double ry) {
    return Util::getArcEndPoint(slice.centre(), Math::toFloat(rx), Math::toFloat(ry), slice.middleAngle());
}

PointF shifted(PointF point, double x, double y) { return {Math::toFloat(point.x + x), Math::toFloat(point.y + y)}; }

PointF anchorInside(const SliceGeometry& slice, const CaptionRequest& request, double clock) {
    const auto [rx, ry] = slice.outerRadii();
    const PointF rim =
        middleAt(slice, static_cast<double>(rx) - request.offset, static_cast<double>(ry) - request.offset);
    return shifted(rim, isRight(clock) ? -request.text.width : 0, isLower(clock) ? 0 : request.lineHeight);
}

PointF anchorCentred(const SliceGeometry& slice, const CaptionRequest& request) {
    const auto [rx, ry] = slice.outerRadii();
    return shifted(middleAt(slice, rx * 0.75, ry * 0.75), -request.text.width / 2, request.lineHeight / 2);
}

PointF anchorOutside(const SliceGeometry& slice, const CaptionRequest& request, double clock) {
    const auto [rx, ry] = slice.outerRadii();
    const PointF rim =
        middleAt(slice, static_cast<double>(rx) + request.offset, static_cast<double>(ry) + request.offset);
    const double below = static_cast<double>(request.lineHeight) + request.depth;
    const double furtherLines = static_cast<double>(request.text.height) - request.lineHeight;
    return shifted(rim, isRight(clock) ? 0 : -request.text.width, isLower(clock) ? below : -furtherLines);
}

PointF anchorOf(const SliceGeometry& slice, const CaptionRequest& request, double clock) {
    switch (request.placement) {
        case CaptionPlacement::InsideEnd:
            return anchorInside(slice, request, clock);
        case CaptionPlacement::Center:
            return anchorCentred(slice, request);
        case CaptionPlacement::Default:
        case CaptionPlacement::OutsideEnd:
        case CaptionPlacement::InsideBase:
            break;
    }
    return anchorOutside(slice, request, clock);
}

void connect(CaptionLayout& layout, const SliceGeometry& slice, const CaptionRequest& request, double clock) {
    const float outwards = isRight(clock) ? 1 : -1;
    layout.hasConnector = true;
    layout.box.x += outwards * kConnectorShift;
    layout.anchor.x += outwards * kConnectorShift;
    const float side = isRight(clock) ? layout.box.x : layout.box.x + layout.box.width;
    layout.connectorEnd = {side - outwards * kConnectorGap, layout.box.y + kConnectorHeight * request.lineHeight};
    layout.connectorElbow = {layout.connectorEnd.x - outwards * kElbow, layout.connectorEnd.y};
    const auto [rx, ry] = slice.outerRadii();
    layout.connectorRim = shifted(middleAt(slice, rx, ry), 0, isLower(clock) ? request.depth / 2 : 0);
}

}  // namespace

bool isOutside(CaptionPlacement placement) noexcept {
    return placement == CaptionPlacement::Default || placement == CaptionPlacement::OutsideEnd;
}

// Whole turns are taken off one by one, so that 720 ends at 360 and -360 at 0; fmod does so in one go.
double clockAngle(double radians) noexcept {
    const double clock = 360 - (Util::toDegrees(radians) - 90);
    if (clock >= 0 && clock <= 360) return clock;
    const double rest = std::fmod(clock, 360);
    if (clock > 360) return rest == 0 ? 360 : rest;
    return rest < 0 ? rest + 360 : 0;
}

CaptionLayout placeCaption(const SliceGeometry& slice, const CaptionRequest& request) {
    const double clock = clockAngle(slice.middleAngle());
    CaptionLayout layout;
    layout.anchor = anchorOf(slice, request, clock);
    layout.box = {layout.anchor.x, layout.anchor.y - request.lineHeight, request.text.width, request.text.height};
    if (request.wantsConnector && isOutside(request.placement)) connect(layout, slice, request, clock);
    return layout;
}

}  // namespace VEXA
