#pragma once

#include <memory>

#include "vexa/cartesian/AxisData.h"
#include "vexa/cartesian/AxisScale.h"
#include "vexa/cartesian/AxisTicks.h"
#include "vexa/cartesian/VexaCategoryAxis.h"
#include "vexa/cartesian/VexaContainerObject.h"
#include "vexa/cartesian/VexaValueAxis.h"
#include "vexa/style/VexaAreaObject.h"

namespace VEXA {

/// The rectangle in which bar, line and area charts are drawn against a category axis and a value axis. It is the
/// authority on the data: what kind each axis shows, from where to where, and at which coordinate a value lies.
///
/// Where an operation takes a flag `category`, true means the category axis and false the value axis; it throws
/// NullPointerException without that axis. Data is cleaned and measured once, on the first question; scales are
/// computed once for each size of the area. All coordinates are px from the plot's own top left corner, y downward.
class VexaPlotArea : public VexaAreaObject {
public:
    class VexaPlotAreaTypeInfo final : public XmlTypeInfo<VexaPlotArea, VexaAreaObject> {
    public:
        VexaPlotAreaTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// The plot area that an axis, a container, a series or a data point lies in. Throws NullPointerException when it
    /// lies in none.
    static VexaPlotArea& of(const VexaObject& object);

    /// Lays the plot out on the first call (unless labels may overflow), then paints background, grid lines, charts,
    /// axes, and what lies above the charts. Without one of the axes, and when the layout leaves no room, it paints
    /// nothing and warns. Throws UnreacheableCodeException for ordinals without a meaning and Exception for a unit that
    /// no axis can have.
    void render(VexaRenderContext& context) override;
    /// Hands the theme's colours to the series, the last one taking the first, to the plot and to the axes. Throws
    /// NullPointerException, naming the axis, when a theme is given and an axis is missing.
    void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) override;
    /// The number of series in all charts.
    int getSerieCount() override;
    /// Paints the background; in the 3-D view as the back wall, with a wall on the left and a floor.
    void drawBackground(VexaRenderContext& context) override;

    const XmlObjectList<VexaContainerObject>& getCharts() const { return charts_; }
    bool getShowCaptions() const { return *showCaptions_; }

    /// The axis that the flag names.
    VexaAxisObject& getAxis(bool category);
    /// The axis across; null when it is missing.
    VexaAxisObject* getOtherAxis(bool category);
    /// Whether values rise upright, bars stand up and categories lie side by side: the bar direction. True, too,
    /// without axes.
    bool isVerticalValueAxis() const;
    /// Makes the axes perpendicular; the value axis's own setting wins, vertical is what both take when they have none.
    void resolveOrientations();

    /// What the axis shows: what its data-type says, else what most of the data is.
    ValueKind getDataKind(bool category);
    /// What the data says of an axis.
    const AxisData& getData(bool category);
    /// From where to where the data goes; the axis itself (VexaAxisObject::getRange) adds what the document fixes.
    AxisRange getAxisRange(bool category);
    /// The sum of the positive, or of the negative, values of all data points of all charts with that category.
    /// Categories do not stack: 0 where the flag says so. Constant time after the first call.
    float getStackedTotal(bool category, const Value& categoryValue, bool positive);

    /// (0, 0) and the present size of the area.
    RectF getPlotRect(VexaRenderContext& context);
    /// How many labels fit along the axis; 0 where a label has no extent.
    int getMaxLabelCount(VexaRenderContext& context, bool category);
    /// The scale of an axis for the present size of the area.
    const AxisScale& getScale(VexaRenderContext& context, bool category);
    /// Where the axis has ticks, grid lines and labels.
    const Vector<Value>& getAxisValues(VexaRenderContext& context, bool category);
    /// Coordinate of a value along an axis of that length. Constant time.
    float getPosition(VexaRenderContext& context, float length, const Value& value, bool category);
    /// Coordinate along this axis at which the other axis crosses it by its value.
    float getCrossPosition(VexaRenderContext& context, float length, bool category);

    /// What the bodies of series need: where a category and a value lie, and the origin that bars and areas stand on.
    /// With vertical values (isVerticalValueAxis) the category is an x along the plot's width, value and origin are a y
    /// along its height; else the category is a y, value and origin are an x. Constant time.
    float getCategoryPosition(VexaRenderContext& context, const Value& category);
    float getValuePosition(VexaRenderContext& context, const Value& value);
    float getOriginPosition(VexaRenderContext& context);

    /// Throws Exception 34066, naming the axis, for a unit of 0 or less.
    static void checkUnit(VexaAxisObject& axis);

    /// The area's rectangle as the document gives it, before the layout shrank it; empty before that.
    const RectF& getOuterRect() const noexcept { return outerRect_; }

private:
    static constexpr std::size_t slot(bool category) noexcept { return category ? 1 : 0; }

    // In VexaPlotArea.cpp.
    String missingAxes() const;
    void layoutPlotRect(VexaRenderContext& context);
    bool hasRoom(VexaRenderContext& context);
    void drawWalls(VexaRenderContext& context, const RectF& rect, float depth);
    void drawGrid(VexaRenderContext& context);

    // In VexaPlotAreaData.cpp.
    void countKinds();
    void measureData();
    void cleanSerie(VexaSerie& serie);
    void measureExtremes();
    void collectTotals();

    // In VexaPlotAreaScales.cpp.
    float lengthAlong(VexaRenderContext& context, bool category);
    void computeScales(VexaRenderContext& context);
    AxisScale makeScale(VexaRenderContext& context, bool category);
    Vector<Value> makeAxisValues(VexaRenderContext& context, bool category);
    Vector<Value> makeNumericValues(VexaRenderContext& context, bool category);
    Vector<Value> makeDateValues(VexaRenderContext& context, bool category);
    /// Takes the values off the picture's room, or tells why not all are there.
    static void takeValues(VexaRenderContext& context, VexaAxisObject& axis, const AxisTicks& ticks, bool isUnitGiven);
    static void tellThinned(VexaAxisObject& axis, const AxisTicks& ticks, bool isUnitGiven);

    TXmlAttribute<bool> showCaptions_{DefaultTrueBoolAttribute};
    XmlObjectList<VexaContainerObject> charts_;
    XmlObjPtr<VexaCategoryAxis> categoryAxis_;
    XmlObjPtr<VexaValueAxis> valueAxis_;
    bool isLaidOut_ = false;
    RectF outerRect_;

    // Pairs are of the value axis and of the category axis.
    bool areKindsCounted_ = false;
    KindCount kinds_[2];
    std::unique_ptr<AxisData> data_[2];  // none until measured
    std::unique_ptr<StackedTotals> totals_;
    bool isScaled_ = false;
    SizeF scaledSize_;
    AxisScale scales_[2];
};

}  // namespace VEXA
