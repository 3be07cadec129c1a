#include "vexa/cartesian/VexaBar.h"

namespace VEXA {

VexaBar::VexaBarTypeInfo::VexaBarTypeInfo() : XmlTypeInfo("VexaBar", "bar-chart", chartNamespace(), &initTypeInfo) {}

void VexaBar::VexaBarTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaContainerObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "cluster-spacing", space, &VexaBar::clusterSpacing_, DefaultLength, false);
    addAttributeTypeInfo(info, "bar-shape", space, &VexaBar::barShape_, DefaultBarShapeType, false);
}

XmlObjectTypeInfo* VexaBar::getTypeInfoInstance() {
    static Immortal<VexaBarTypeInfo> info;
    return &info.value;
}

void VexaBar::render(VexaRenderContext& context) {
    if (getSeries().size() == 1) grouping_.setValue(SerieGrouping::Overlapped);
    VexaContainerObject::render(context);
}

bool VexaBar::isReversed(BarDirection direction) const {
    const bool isLyingCluster = *grouping_ == SerieGrouping::Clustered && direction == BarDirection::Horizontal;
    return isLyingCluster || VexaContainerObject::isReversed(direction);
}

}  // namespace VEXA
