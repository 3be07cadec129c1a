#include "vexa/pie/VexaSlice.h"

namespace VEXA {

VexaSlice::VexaSliceTypeInfo::VexaSliceTypeInfo()
    : XmlTypeInfo("VexaSlice", "slice", chartNamespace(), &initTypeInfo) {}

void VexaSlice::VexaSliceTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "value", space, &VexaSlice::value_, DefaultFloatAttribute, false);
    addAttributeTypeInfo(info, "caption", space, &VexaSlice::caption_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "caption-placement", space, &VexaSlice::captionPlacement_, DefaultCaptionPlacement,
                         true);
}

XmlObjectTypeInfo* VexaSlice::getTypeInfoInstance() {
    static Immortal<VexaSliceTypeInfo> info;
    return &info.value;
}

void VexaSlice::render(VexaRenderContext&) {}

}  // namespace VEXA
