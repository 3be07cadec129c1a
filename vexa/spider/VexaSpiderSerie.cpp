#include "vexa/spider/VexaSpiderSerie.h"

#include "vexa/spider/SpiderPointIndex.h"
#include "vexa/spider/VexaSpider.h"

namespace VEXA {

VexaSpiderSerie::VexaSpiderSerieTypeInfo::VexaSpiderSerieTypeInfo()
    : XmlTypeInfo("VexaSpiderSerie", "spider-serie", chartNamespace(), &initTypeInfo) {}

void VexaSpiderSerie::VexaSpiderSerieTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    addElementTypeInfo(info, "spider-data-point", chartNamespace(), &VexaSpiderSerie::dataPoints_);
}

XmlObjectTypeInfo* VexaSpiderSerie::getTypeInfoInstance() {
    static Immortal<VexaSpiderSerieTypeInfo> info;
    return &info.value;
}

SpiderExtent VexaSpiderSerie::getDataRange() const {
    if (dataPoints_.isEmpty()) return {0, 0};
    SpiderExtent extent;
    for (const auto& point : dataPoints_) extent.add(point->getValue());
    return extent;
}

VexaSpiderDataPoint* VexaSpiderSerie::getDataPoint(const String& axisId) const {
    for (const auto& point : dataPoints_) {
        if (point->getAxisId().compare(axisId) == 0) return point.get();
    }
    return nullptr;
}

Vector<PointF> VexaSpiderSerie::getPoints(VexaRenderContext& context) const {
    return getPoints(VexaSpider::of(*this).getLayout(context));
}

Vector<PointF> VexaSpiderSerie::getPoints(const SpiderLayout& layout) const {
    const SpiderPointIndex index(dataPoints_);
    Vector<PointF> corners;
    corners.reserve(layout.axisCount());
    for (const auto& axis : VexaSpider::of(*this).getAxes()) {
        const VexaSpiderDataPoint* const point = index.find(axis->getId());
        corners.push_back(point == nullptr ? PointF() : layout.pointOf(corners.size(), point->getValue()));
    }
    return corners;
}

void VexaSpiderSerie::render(VexaRenderContext& context) { render(context, VexaSpider::of(*this).getLayout(context)); }

void VexaSpiderSerie::render(VexaRenderContext& context, const SpiderLayout& layout) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    context.drawPolygon(getPoints(layout), /*closed*/ true);
}

}  // namespace VEXA
