#include "vexa/cartesian/VexaDataPoint.h"

#include "vexa/cartesian/PlotMapping.h"
#include "vexa/cartesian/VexaPlotArea.h"

namespace VEXA {

VexaDataPoint::VexaDataPointTypeInfo::VexaDataPointTypeInfo()
    : XmlTypeInfo("VexaDataPoint", "data-point", chartNamespace(), &initTypeInfo) {}

void VexaDataPoint::VexaDataPointTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaElementObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "value", space, &VexaDataPoint::value_, DefaultValue, false);
    addAttributeTypeInfo(info, "category", space, &VexaDataPoint::category_, DefaultValue, false);
    addAttributeTypeInfo(info, "width", space, &VexaDataPoint::width_, DefaultWidthLength, false);
    addAttributeTypeInfo(info, "caption", space, &VexaDataPoint::caption_, DefaultStringAttribute, false);
    addAttributeTypeInfo(info, "caption-placement", space, &VexaDataPoint::captionPlacement_, DefaultCaptionPlacement,
                         true);
    addAttributeTypeInfo(info, "marker", space, &VexaDataPoint::marker_, DefaultMarkerType, true);
    addAttributeTypeInfo(info, "marker-width", space, &VexaDataPoint::markerWidth_, DefaultMarkerWidth, true);
}

XmlObjectTypeInfo* VexaDataPoint::getTypeInfoInstance() {
    static Immortal<VexaDataPointTypeInfo> info;
    return &info.value;
}

bool VexaDataPoint::isStyledLike(const VexaDataPoint& other) const noexcept {
    const auto areShared = [](const auto&... pairs) { return ((pairs.first.box() == pairs.second.box()) && ...); };
    const auto pair = [](const auto& a, const auto& b) { return std::pair<decltype(a), decltype(b)>(a, b); };
    return themeFill_ == other.themeFill_ && themeStroke_ == other.themeStroke_ &&
           areShared(pair(fill_, other.fill_), pair(fillOpacity_, other.fillOpacity_), pair(opacity_, other.opacity_),
                     pair(stroke_, other.stroke_), pair(strokeOpacity_, other.strokeOpacity_),
                     pair(strokeWidth_, other.strokeWidth_), pair(lineCap_, other.lineCap_),
                     pair(lineJoin_, other.lineJoin_), pair(miterLimit_, other.miterLimit_),
                     pair(dashArray_, other.dashArray_), pair(dashOffset_, other.dashOffset_),
                     pair(fontFamily_, other.fontFamily_), pair(fontSize_, other.fontSize_),
                     pair(fontStyle_, other.fontStyle_), pair(fontWeight_, other.fontWeight_),
                     pair(captionColor_, other.captionColor_));
}

BarAnchors VexaDataPoint::getAnchors(VexaRenderContext& context) const {
    return PlotMapping(VexaPlotArea::of(*this), context).anchors(getCategory(), getValue());
}

void VexaDataPoint::getValuePoint(VexaRenderContext& context, float& x, float& y) const {
    const PointF point = getAnchors(context).value;
    x = point.x;
    y = point.y;
}

void VexaDataPoint::getBasePoint(VexaRenderContext& context, float& x, float& y) const {
    const PointF point = getAnchors(context).base;
    x = point.x;
    y = point.y;
}

}  // namespace VEXA
