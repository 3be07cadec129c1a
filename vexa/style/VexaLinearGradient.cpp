#include "vexa/style/VexaLinearGradient.h"

namespace VEXA {

constinit const DefaultAttribute<SLength> VexaLinearGradient::DefaultX2(SLength(1));

VexaLinearGradient::VexaLinearGradientTypeInfo::VexaLinearGradientTypeInfo()
    : XmlTypeInfo("VexaLinearGradient", "linear-gradient", chartNamespace(), &initTypeInfo) {}

void VexaLinearGradient::VexaLinearGradientTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "gradientTransform", space, &VexaLinearGradient::gradientTransform_,
                         DefaultTransformList, false);
    addAttributeTypeInfo(info, "x1", space, &VexaLinearGradient::x1_, DefaultSLength, false);
    addAttributeTypeInfo(info, "y1", space, &VexaLinearGradient::y1_, DefaultSLength, false);
    addAttributeTypeInfo(info, "x2", space, &VexaLinearGradient::x2_, DefaultX2, false);
    addAttributeTypeInfo(info, "y2", space, &VexaLinearGradient::y2_, DefaultSLength, false);
    addAttributeTypeInfo(info, "href", space, &VexaLinearGradient::href_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "gradientUnits", space, &VexaLinearGradient::gradientUnits_, DefaultSGradientUnits,
                         false);
    addAttributeTypeInfo(info, "spreadMethod", space, &VexaLinearGradient::spreadMethod_, DefaultSGradientSpreadMethod,
                         false);
    addElementTypeInfo(info, "stop", space, &VexaLinearGradient::stops_);
}

XmlObjectTypeInfo* VexaLinearGradient::getTypeInfoInstance() {
    static Immortal<VexaLinearGradientTypeInfo> info;
    return &info.value;
}

SmartPtr<GradientBrush> VexaLinearGradient::makeBrush() const {
    return make<LinearGradientBrush>(x1_->pxSize(), y1_->pxSize(), x2_->pxSize(), y2_->pxSize(), *gradientUnits_,
                                     *spreadMethod_);
}

}  // namespace VEXA
