#include "vexa/cartesian/VexaDataPoint.h"

namespace VEXA {

VexaDataPoint::VexaDataPointTypeInfo::VexaDataPointTypeInfo()
    : XmlTypeInfo("VexaDataPoint", "data-point", chartNamespace(), &initTypeInfo) {}

void VexaDataPoint::VexaDataPointTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "value", space, &VexaDataPoint::value_, DefaultValue, false);
    addAttributeTypeInfo(info, "category", space, &VexaDataPoint::category_, DefaultValue, false);
    addAttributeTypeInfo(info, "width", space, &VexaDataPoint::width_, DefaultWidthLength, false);
    addAttributeTypeInfo(info, "caption", space, &VexaDataPoint::caption_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "caption-placement", space, &VexaDataPoint::captionPlacement_, DefaultCaptionPlacement,
                         true);
    addAttributeTypeInfo(info, "marker", space, &VexaDataPoint::marker_, DefaultMarkerType, true);
    addAttributeTypeInfo(info, "marker-width", space, &VexaDataPoint::markerWidth_, DefaultMarkerWidth, true);
}

XmlObjectTypeInfo* VexaDataPoint::getTypeInfoInstance() {
    static Immortal<VexaDataPointTypeInfo> info;
    return &info.value;
}

void VexaDataPoint::render(VexaRenderContext&) {}

}  // namespace VEXA
