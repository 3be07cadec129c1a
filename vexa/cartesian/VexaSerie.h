#pragma once

#include "vexa/cartesian/AxisData.h"
#include "vexa/cartesian/VexaDataPoint.h"
#include "vexa/style/VexaElementObject.h"

namespace VEXA {

class ChartPass;
class VexaPlotArea;

/// A list of data points with the style that they inherit.
class VexaSerie : public VexaElementObject {
public:
    class VexaSerieTypeInfo final : public XmlTypeInfo<VexaSerie, VexaElementObject> {
    public:
        VexaSerieTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// The body: bars point by point, a line as one polyline, an area as one polygon, with their other faces in the 3-D
    /// view. A line or an area bridges a point without value. Throws UnreacheableCodeException in a container of an
    /// unknown kind. The one call finds the series in its container; the other is told where it stands.
    void render(VexaRenderContext& context) override;
    void render(VexaRenderContext& context, const ChartPass& pass, std::size_t index);
    /// Captions and markers of the data points.
    virtual void renderOverlay(VexaRenderContext& context);
    void renderOverlay(VexaRenderContext& context, const ChartPass& pass, std::size_t index);

    /// Also what the data points are painted with.
    void setThemeFill(SmartPtr<Brush> fill) override;
    void setThemeStroke(SmartPtr<Stroke> stroke) override;
    /// The line of a series that is drawn as one.
    virtual void setThemeLineStroke(SmartPtr<Stroke> stroke);
    bool hasThemeLineStroke() const { return !themeLineStroke_.isEmpty(); }

    const XmlObjectList<VexaDataPoint>& getDataPoints() const { return dataPoints_; }
    /// Throws NullPointerException outside a plot area.
    VexaPlotArea& getPlotArea() const;
    /// The first data point whose category (or value) lies at the same coordinate of the plot as the target; null when
    /// none does.
    VexaDataPoint* findDataPoint(VexaRenderContext& context, const Value& target, bool byCategory);

    /// Takes out the data points without category and those whose category another one before them has, on the first
    /// call, with a warning of either. On an axis of texts categories are equal when their own texts are. Throws
    /// NullPointerException outside a plot area.
    void prepareDataPoints();
    /// What most of the values, or of the categories, are: Number when there are more numbers than texts, else Date
    /// when there are more dates than texts, else Text; None without any.
    ValueKind getValueType(bool categories) const;
    /// Takes out the data points whose value (category) is not of the type of most; then the smallest and the largest
    /// number, the earliest and the latest date, the first and the last text. No value without any.
    Value getMinValue(bool categories);
    Value getMaxValue(bool categories);

    /// Takes out the data points that the function says, asking it once for each in document order.
    template <class Predicate>
    std::size_t removeDataPoints(Predicate shouldGo) {
        return dataPoints_.removeIf([&](const XmlObjPtr<VexaDataPoint>& point) { return shouldGo(*point); });
    }

private:
    AxisRange getExtremes(bool categories);

    // In VexaSeriePainting.cpp.
    void drawBars(VexaRenderContext& context, const ChartPass& pass, std::size_t index);
    void drawLine(VexaRenderContext& context, const ChartPass& pass);
    void drawArea(VexaRenderContext& context, const ChartPass& pass);
    void drawAreaSides(VexaRenderContext& context, const Vector<PointF>& outline, const ChartPass& pass);
    Vector<PointF> getValuePoints(const ChartPass& pass) const;
    Vector<PointF> getAreaOutline(const ChartPass& pass) const;

    XmlObjectList<VexaDataPoint> dataPoints_;
    bool needsPreparation_ = true;
    SmartPtr<Stroke> themeLineStroke_;
};

}  // namespace VEXA
