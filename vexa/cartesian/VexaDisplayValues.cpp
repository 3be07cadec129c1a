#include "vexa/cartesian/VexaDisplayValues.h"

namespace VEXA {

VexaDisplayValues::VexaDisplayValuesTypeInfo::VexaDisplayValuesTypeInfo()
    : XmlTypeInfo("VexaDisplayValues", "display-values", chartNamespace(), &initTypeInfo) {}

void VexaDisplayValues::VexaDisplayValuesTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "draw-values", space, &VexaDisplayValues::drawValues_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "replace-values", space, &VexaDisplayValues::replaceValues_, DefaultTrueBoolAttribute,
                         false);
    addAttributeTypeInfo(info, "adjust-values", space, &VexaDisplayValues::adjustValues_, DefaultTrueBoolAttribute,
                         false);
    addAttributeTypeInfo(info, "draw-at-min", space, &VexaDisplayValues::drawAtMin_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "offset", space, &VexaDisplayValues::offset_, DefaultCaptionOffset, false);
    addAttributeTypeInfo(info, "min", space, &VexaDisplayValues::min_, DefaultMinValue, true);
    addAttributeTypeInfo(info, "max", space, &VexaDisplayValues::max_, DefaultMaxValue, true);
    addAttributeTypeInfo(info, "placement", space, &VexaDisplayValues::placement_, DefaultDisplayValPlacement, false);
    addAttributeTypeInfo(info, "orientation", space, &VexaDisplayValues::orientation_, DefaultDisplayValOrientation,
                         false);
    addAttributeTypeInfo(info, "format", space, &VexaDisplayValues::format_, DefaultStringAttribute, false);
    addElementTypeInfo(info, "value", space, &VexaDisplayValues::values_);
}

XmlObjectTypeInfo* VexaDisplayValues::getTypeInfoInstance() {
    static Immortal<VexaDisplayValuesTypeInfo> info;
    return &info.value;
}

void VexaDisplayValues::render(VexaRenderContext&) {}

}  // namespace VEXA
