#include "vexa/cartesian/VexaPlotArea.h"

namespace VEXA {

VexaPlotArea::VexaPlotAreaTypeInfo::VexaPlotAreaTypeInfo()
    : XmlTypeInfo("VexaPlotArea", "plot-area", chartNamespace(), &initTypeInfo) {}

void VexaPlotArea::VexaPlotAreaTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaAreaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "show-captions", space, &VexaPlotArea::showCaptions_, DefaultTrueBoolAttribute, false);
    addElementTypeInfo(info, "line-chart", space, &VexaPlotArea::charts_);
    addElementTypeInfo(info, "bar-chart", space, &VexaPlotArea::charts_);
    addElementTypeInfo(info, "area-chart", space, &VexaPlotArea::charts_);
    addElementTypeInfo(info, "category-axis", space, &VexaPlotArea::categoryAxis_);
    addElementTypeInfo(info, "value-axis", space, &VexaPlotArea::valueAxis_);
}

XmlObjectTypeInfo* VexaPlotArea::getTypeInfoInstance() {
    static Immortal<VexaPlotAreaTypeInfo> info;
    return &info.value;
}

void VexaPlotArea::render(VexaRenderContext&) { notice_.tell(*this); }

void VexaPlotArea::preRender(VexaRenderContext&, SmartPtr<VexaTheme>) {}

int VexaPlotArea::getSerieCount() {
    std::size_t count = 0;
    for (const auto& chart : charts_) count += chart->getSeries().size();
    return static_cast<int>(count);
}

}  // namespace VEXA
