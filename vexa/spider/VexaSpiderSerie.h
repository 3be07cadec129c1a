#pragma once

#include "vexa/spider/SpiderAxisIndex.h"
#include "vexa/spider/SpiderLayout.h"
#include "vexa/spider/VexaSpiderDataPoint.h"

namespace VEXA {

/// A series of a radar chart: a closed polygon with one corner on each spoke, filled and stroked in its own style.
class VexaSpiderSerie : public VexaElementObject {
public:
    class VexaSpiderSerieTypeInfo final : public XmlTypeInfo<VexaSpiderSerie, VexaElementObject> {
    public:
        VexaSpiderSerieTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints the polygon, and warns of each data point that has none of the axes. Throws Exception 34000 when the
    /// look-up of an axis meets a data point without axis-id, and NullPointerException outside a spider.
    void render(VexaRenderContext& context) override;
    /// The same with layout and axes of the spider, which all its series share.
    void render(VexaRenderContext& context, const SpiderLayout& layout, const SpiderAxisIndex& axes);

    const XmlObjectList<VexaSpiderDataPoint>& getDataPoints() const { return dataPoints_; }
    /// Warns of a data point that has none of the axes.
    static void tellLost(const VexaSpiderDataPoint& point, const SpiderAxisIndex& axes);

    /// The smallest and the largest value of the data points; (0, 0) without data points.
    SpiderExtent getDataRange() const;
    /// The first data point with that axis-id; null when there is none. Throws as render does.
    VexaSpiderDataPoint* getDataPoint(const String& axisId) const;
    /// The corners in the order of the axes, relative to the centre of the chart; the centre itself for an axis without
    /// data point. Throws as render does.
    Vector<PointF> getPoints(VexaRenderContext& context) const;

private:
    struct Corners {
        Vector<PointF> points;
        Vector<const VexaSpiderDataPoint*> lost;  // the data points that have none of the axes
    };
    Corners getCorners(const SpiderLayout& layout, const SpiderAxisIndex& axes) const;

    XmlObjectList<VexaSpiderDataPoint> dataPoints_;
};

}  // namespace VEXA
