#include "vexa/style/VexaRadialGradient.h"

namespace VEXA {

constinit const DefaultAttribute<SLength> VexaRadialGradient::DefaultCentre(SLength(0.5F));
constinit const DefaultAttribute<SLengthOrPercent> VexaRadialGradient::DefaultRadius(SLengthOrPercent(Length(0.5F)));

VexaRadialGradient::VexaRadialGradientTypeInfo::VexaRadialGradientTypeInfo()
    : XmlTypeInfo("VexaRadialGradient", "radial-gradient", chartNamespace(), &initTypeInfo) {}

void VexaRadialGradient::VexaRadialGradientTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "gradientTransform", space, &VexaRadialGradient::gradientTransform_,
                         DefaultTransformList, false);
    addAttributeTypeInfo(info, "cx", space, &VexaRadialGradient::cx_, DefaultCentre, false);
    addAttributeTypeInfo(info, "cy", space, &VexaRadialGradient::cy_, DefaultCentre, false);
    addAttributeTypeInfo(info, "fx", space, &VexaRadialGradient::fx_, DefaultSNullableLength, false);
    addAttributeTypeInfo(info, "fy", space, &VexaRadialGradient::fy_, DefaultSNullableLength, false);
    addAttributeTypeInfo(info, "r", space, &VexaRadialGradient::r_, DefaultRadius, false);
    addAttributeTypeInfo(info, "href", space, &VexaRadialGradient::href_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "gradientUnits", space, &VexaRadialGradient::gradientUnits_, DefaultSGradientUnits,
                         false);
    addAttributeTypeInfo(info, "spreadMethod", space, &VexaRadialGradient::spreadMethod_, DefaultSGradientSpreadMethod,
                         false);
    addElementTypeInfo(info, "stop", space, &VexaRadialGradient::stops_);
}

XmlObjectTypeInfo* VexaRadialGradient::getTypeInfoInstance() {
    static Immortal<VexaRadialGradientTypeInfo> info;
    return &info.value;
}

SmartPtr<GradientBrush> VexaRadialGradient::makeBrush() const {
    const float radius = r_->pxSize(0);
    return make<RadialGradientBrush>(cx_->pxSize(), cy_->pxSize(), radius, radius, *gradientUnits_, *spreadMethod_);
}

}  // namespace VEXA
