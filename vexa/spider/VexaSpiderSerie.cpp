#include "vexa/spider/VexaSpiderSerie.h"

#include "vexa/spider/VexaSpider.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

void tellLost(const VexaSpiderDataPoint& point) {
    if (!point.hasAxisId()) return Log::warning(34000, {}, point.getPlace());
    Log::warning(34016, {quoteForMessage(point.getAxisId())}, point.getPlace());
}

}  // namespace

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
    VexaSpider& spider = VexaSpider::of(*this);
    return getCorners(spider.getLayout(context), SpiderAxisIndex(spider.getAxes())).points;
}

// Points look for their axes, not axes for their points: the search costs what the document has of points, not series
// times axes.
VexaSpiderSerie::Corners VexaSpiderSerie::getCorners(const SpiderLayout& layout, const SpiderAxisIndex& axes) const {
    Corners corners{Vector<PointF>(layout.axisCount()), {}};
    Vector<bool> isTaken(layout.axisCount());
    std::size_t open = layout.axisCount();  // axes that would still search beyond the present point
    for (const auto& point : dataPoints_) {
        std::span<const SpiderAxisIndex::Entry> found;
        if (open > 0 || point->hasAxisId()) found = axes.find(point->getAxisId());
        if (found.empty()) {
            corners.lost.push_back(point.get());
        } else if (!isTaken[found.front().axis]) {
            for (const auto& entry : found) corners.points[entry.axis] = layout.pointOf(entry.axis, point->getValue());
            isTaken[found.front().axis] = true;
            open -= found.size();
        }
    }
    return corners;
}

void VexaSpiderSerie::render(VexaRenderContext& context) {
    VexaSpider& spider = VexaSpider::of(*this);
    render(context, spider.getLayout(context), SpiderAxisIndex(spider.getAxes()));
}

void VexaSpiderSerie::render(VexaRenderContext& context, const SpiderLayout& layout, const SpiderAxisIndex& axes) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const Corners corners = getCorners(layout, axes);
    context.drawPolygon(corners.points, /*closed*/ true);
    for (const VexaSpiderDataPoint* const point : corners.lost) tellLost(*point);
}

}  // namespace VEXA
