#include "vexa/pie/VexaPie.h"

namespace VEXA {

constinit const DefaultAttribute<LengthOrPercent> VexaPie::DefaultCaptionSize(LengthOrPercent::percent(0.15F));

VexaPie::VexaPieTypeInfo::VexaPieTypeInfo() : XmlTypeInfo("VexaPie", "pie", chartNamespace(), &initTypeInfo) {}

void VexaPie::VexaPieTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAreaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "start-angle", space, &VexaPie::startAngle_, DefaultFloatAttribute, false);
    addAttributeTypeInfo(info, "slice-orientation", space, &VexaPie::sliceOrientation_, DefaultSliceOrientation, false);
    addAttributeTypeInfo(info, "pie-shape", space, &VexaPie::pieShape_, DefaultPieShapeType, false);
    addAttributeTypeInfo(info, "show-connectors", space, &VexaPie::showConnectors_, DefaultFalseBoolAttribute, false);
    addAttributeTypeInfo(info, "connectors-color", space, &VexaPie::connectorsColor_, DefaultFillColor, false);
    addAttributeTypeInfo(info, "show-captions", space, &VexaPie::showCaptions_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "caption-size", space, &VexaPie::captionSize_, DefaultCaptionSize, false);
    addAttributeTypeInfo(info, "caption-wrap", space, &VexaPie::captionWrap_, DefaultTrueBoolAttribute, false);
    addAttributeTypeInfo(info, "caption-placement", space, &VexaPie::captionPlacement_, DefaultCaptionPlacement, true);
    addElementTypeInfo(info, "slice", space, &VexaPie::slices_);
}

XmlObjectTypeInfo* VexaPie::getTypeInfoInstance() {
    static Immortal<VexaPieTypeInfo> info;
    return &info.value;
}

void VexaPie::render(VexaRenderContext&) { notice_.tell(*this); }

void VexaPie::preRender(VexaRenderContext&, SmartPtr<VexaTheme>) {}

int VexaPie::getSerieCount() { return static_cast<int>(slices_.size()); }

}  // namespace VEXA
