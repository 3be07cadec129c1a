#include "vexa/cartesian/VexaTickMarks.h"

#include "vexa/cartesian/VexaPlotArea.h"

namespace VEXA {

namespace {

/// Where a mark starts and ends across the axis line: rightward or downward are positive.
struct TickSpan {
    float from = 0;
    float to = 0;
};

TickSpan tickSpan(TickMarkStyle style, bool isVertical, bool isAtMaximum, float length) {
    if (style == TickMarkStyle::Cross) return {-length / 2, length / 2};
    if (style == TickMarkStyle::Inside) return {0, isVertical ? length : -length};
    const bool isForward = isVertical == isAtMaximum;
    return isForward ? TickSpan{0, length} : TickSpan{-length, 0};
}

}  // namespace

VexaTickMarks::VexaTickMarksTypeInfo::VexaTickMarksTypeInfo()
    : XmlTypeInfo("VexaTickMarks", "tick-marks", chartNamespace(), &initTypeInfo) {}

void VexaTickMarks::VexaTickMarksTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "tick-mark-style", space, &VexaTickMarks::tickMarkStyle_, DefaultTickMarkStyle, false);
    addAttributeTypeInfo(info, "tick-mark-type", space, &VexaTickMarks::tickMarkType_, DefaultTickMarkType, false);
    addAttributeTypeInfo(info, "tick-mark-length", space, &VexaTickMarks::tickMarkLength_, DefaultTickLength, false);
}

XmlObjectTypeInfo* VexaTickMarks::getTypeInfoInstance() {
    static Immortal<VexaTickMarksTypeInfo> info;
    return &info.value;
}

float VexaTickMarks::getExtent() {
    const float length = tickMarkLength_->pxSize();
    switch (*tickMarkStyle_) {
        case TickMarkStyle::None:
            return 0;
        case TickMarkStyle::Cross:
            return getStrokeWidth() + length / 2;
        case TickMarkStyle::Outside:
            return getStrokeWidth() + length;
        default:
            return getStrokeWidth();
    }
}

void VexaTickMarks::render(VexaRenderContext& context) {
    if (*tickMarkStyle_ < TickMarkStyle::Inside || *tickMarkStyle_ > TickMarkStyle::Outside) return;
    VexaAxisObject& axis = VexaAxisObject::of(*this);
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const SizeF size = axis.getAxisLength(context);
    const TickSpan span = tickSpan(*tickMarkStyle_, axis.isVertical(), axis.isAtMaximum(), tickMarkLength_->pxSize());
    const Length from(span.from);
    const Length to(span.to);
    const AxisScale& scale = axis.getPlotArea().getScale(context, axis.isCategory());
    for (const float position : scale.tickPositions(size.width + size.height)) {
        const Length at(position);
        if (axis.isVertical()) {
            context.drawLine(from, at, to, at);
        } else {
            context.drawLine(at, from, at, to);
        }
    }
}

}  // namespace VEXA
