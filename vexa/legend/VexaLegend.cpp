#include "vexa/legend/VexaLegend.h"

namespace VEXA {

VexaLegend::VexaLegendTypeInfo::VexaLegendTypeInfo()
    : XmlTypeInfo("VexaLegend", "legend", chartNamespace(), &initTypeInfo) {}

void VexaLegend::VexaLegendTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAreaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "orientation", space, &VexaLegend::orientation_, DefaultReferenceOrientation, false);
    addAttributeTypeInfo(info, "legend-placement", space, &VexaLegend::legendPlacement_, DefaultLegendPlacement, false);
    addAttributeTypeInfo(info, "padding", space, &VexaLegend::padding_, DefaultLength, true);
    addElementTypeInfo(info, "legend-item", space, &VexaLegend::items_);
}

XmlObjectTypeInfo* VexaLegend::getTypeInfoInstance() {
    static Immortal<VexaLegendTypeInfo> info;
    return &info.value;
}

void VexaLegend::render(VexaRenderContext&) { notice_.tell(*this); }

void VexaLegend::preRender(VexaRenderContext&, SmartPtr<VexaTheme>) {}

}  // namespace VEXA
