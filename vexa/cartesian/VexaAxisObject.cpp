#include "vexa/cartesian/VexaAxisObject.h"

namespace VEXA {

VexaAxisObject::VexaAxisObjectTypeInfo::VexaAxisObjectTypeInfo()
    : XmlTypeInfo("VexaAxisObject", "", chartNamespace(), &initTypeInfo, 8) {}

void VexaAxisObject::VexaAxisObjectTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "orientation", space, &VexaAxisObject::orientation_, DefaultAxisOrientation, false);
    addAttributeTypeInfo(info, "intersection", space, &VexaAxisObject::intersection_, DefaultAxisIntersection, false);
    addAttributeTypeInfo(info, "caption", space, &VexaAxisObject::caption_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "unit", space, &VexaAxisObject::unit_, DefaultAxisUnits, false);
    addAttributeTypeInfo(info, "data-type", space, &VexaAxisObject::dataType_, DefaultAxisDataType, false);
    addAttributeTypeInfo(info, "min", space, &VexaAxisObject::min_, DefaultMinValue, true);
    addAttributeTypeInfo(info, "max", space, &VexaAxisObject::max_, DefaultMaxValue, true);
    addElementTypeInfo(info, "tick-marks", space, &VexaAxisObject::tickMarks_);
    addElementTypeInfo(info, "display-values", space, &VexaAxisObject::displayValues_);
    addElementTypeInfo(info, "grid-lines", space, &VexaAxisObject::gridLines_);
}

XmlObjectTypeInfo* VexaAxisObject::getTypeInfoInstance() {
    static Immortal<VexaAxisObjectTypeInfo> info;
    return &info.value;
}

VexaAxisObject::~VexaAxisObject() = default;

void VexaAxisObject::render(VexaRenderContext&) {}

}  // namespace VEXA
