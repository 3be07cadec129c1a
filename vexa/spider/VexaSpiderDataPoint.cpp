#include "vexa/spider/VexaSpiderDataPoint.h"

namespace VEXA {

VexaSpiderDataPoint::VexaSpiderDataPointTypeInfo::VexaSpiderDataPointTypeInfo()
    : XmlTypeInfo("VexaSpiderDataPoint", "spider-data-point", chartNamespace(), &initTypeInfo) {}

void VexaSpiderDataPoint::VexaSpiderDataPointTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "value", space, &VexaSpiderDataPoint::value_, DefaultFloatAttribute, false);
    addAttributeTypeInfo(info, "axis-id", space, &VexaSpiderDataPoint::axisId_, DefaultStringAttribute, false);
}

XmlObjectTypeInfo* VexaSpiderDataPoint::getTypeInfoInstance() {
    static Immortal<VexaSpiderDataPointTypeInfo> info;
    return &info.value;
}

void VexaSpiderDataPoint::render(VexaRenderContext&) {}

const String& VexaSpiderDataPoint::getAxisId() const {
    if (!hasAxisId()) raise(Exception(34000), "VexaSpiderDataPoint", 27, getPlace());
    return *axisId_;
}

}  // namespace VEXA
