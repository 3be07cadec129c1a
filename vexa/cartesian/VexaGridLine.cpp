#include "vexa/cartesian/VexaGridLine.h"

#include "vexa/cartesian/VexaPlotArea.h"

namespace VEXA {

VexaGridLine::VexaGridLineTypeInfo::VexaGridLineTypeInfo()
    : XmlTypeInfo("VexaGridLine", "grid-lines", chartNamespace(), &initTypeInfo) {}

void VexaGridLine::VexaGridLineTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    addAttributeTypeInfo(info, "type", chartNamespace(), &VexaGridLine::type_, DefaultGridlineType, false);
}

XmlObjectTypeInfo* VexaGridLine::getTypeInfoInstance() {
    static Immortal<VexaGridLineTypeInfo> info;
    return &info.value;
}

void VexaGridLine::render(VexaRenderContext& context) {
    if (*type_ == GridlineType::None) return;
    VexaAxisObject& axis = VexaAxisObject::of(*this);
    VexaPlotArea& plot = axis.getPlotArea();
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    context.setFill(nullptr);
    const auto [width, height] = plot.getAreaSize(context);
    const bool is3D = plot.isView3DMode();
    const float depth = plot.getSceneDepth();
    const AxisScale& scale = plot.getScale(context, axis.isCategory());
    for (const float at : scale.tickPositions(axis.isVertical() ? height : width)) {
        if (axis.isVertical()) {
            context.drawLine(Length(0), Length(at), Length(width), Length(at));
            if (is3D) context.drawLine(Length(-depth), Length(at + depth), Length(0), Length(at));
        } else {
            context.drawLine(Length(at), Length(0), Length(at), Length(height));
            if (is3D) context.drawLine(Length(at - depth), Length(height + depth), Length(at), Length(height));
        }
    }
}

}  // namespace VEXA
