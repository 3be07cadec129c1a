#include "vexa/spider/VexaSpiderSerie.h"

#include "vexa/spider/VexaSpider.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

constexpr int kNoAxisId = 34000;
constexpr int kUnknownAxis = 34016;
constexpr int kNearAxis = 34104;

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

void VexaSpiderSerie::tellLost(const VexaSpiderDataPoint& point, const SpiderAxisIndex& axes) {
    if (!point.hasAxisId()) return Log::warning(kNoAxisId, {}, point.getPlace());
    const String near = Log::takesWarning(kUnknownAxis) ? axes.findNearest(point.getAxisId()) : String();
    VariantArray arguments{quoteForMessage(point.getAxisId())};
    if (!near.isEmpty()) arguments.emplace_back(quoteForMessage(near));
    Log::warning(near.isEmpty() ? kUnknownAxis : kNearAxis, arguments, point.getPlace());
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
    for (const VexaSpiderDataPoint* const point : corners.lost) tellLost(*point, axes);
}

}  // namespace VEXA
