#include "vexa/legend/VexaLegendItem.h"

namespace VEXA {

VexaLegendItem::VexaLegendItemTypeInfo::VexaLegendItemTypeInfo()
    : XmlTypeInfo("VexaLegendItem", "legend-item", chartNamespace(), &initTypeInfo) {}

void VexaLegendItem::VexaLegendItemTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "label", space, &VexaLegendItem::label_, DefaultMarkerType, false);
    addAttributeTypeInfo(info, "label-width", space, &VexaLegendItem::labelWidth_, DefaultMarkerWidth, false);
    addAttributeTypeInfo(info, "label-spacing", space, &VexaLegendItem::labelSpacing_, DefaultMarkerSpacing, false);
    addAttributeTypeInfo(info, "caption", space, &VexaLegendItem::caption_, DefaultStringAttribute, false);
}

XmlObjectTypeInfo* VexaLegendItem::getTypeInfoInstance() {
    static Immortal<VexaLegendItemTypeInfo> info;
    return &info.value;
}

void VexaLegendItem::render(VexaRenderContext&) {}

}  // namespace VEXA
