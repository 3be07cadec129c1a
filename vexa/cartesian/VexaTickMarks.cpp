#include "vexa/cartesian/VexaTickMarks.h"

namespace VEXA {

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

void VexaTickMarks::render(VexaRenderContext&) {}

}  // namespace VEXA
