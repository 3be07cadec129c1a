#pragma once

#include "vexa/cartesian/AxisData.h"
#include "vexa/cartesian/PlotLayout.h"
#include "vexa/cartesian/VexaDisplayValues.h"
#include "vexa/cartesian/VexaGridLine.h"
#include "vexa/cartesian/VexaTickMarks.h"
#include "vexa/style/VexaElementObject.h"

namespace VEXA {

class VexaPlotArea;

/// Base of the two axes of a plot area, which differ in the data that they show. An axis knows where it lies and paints
/// its line, ticks, labels and caption; what concerns data it asks of the plot area, and throws NullPointerException
/// when it lies in none.
class VexaAxisObject : public VexaElementObject {
public:
    class VexaAxisObjectTypeInfo final : public XmlTypeInfo<VexaAxisObject, VexaElementObject> {
    public:
        VexaAxisObjectTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    ~VexaAxisObject() override = 0;

    /// The axis that labels, tick marks or grid lines belong to. Throws NullPointerException when it is none.
    static VexaAxisObject& of(const VexaObject& child);
    VexaPlotArea& getPlotArea() const;

    /// Paints ticks, line, labels and caption, in the coordinates of the plot. Throws UnreacheableCodeException for an
    /// intersection without a meaning.
    void render(VexaRenderContext& context) override;
    void drawGridLines(VexaRenderContext& context);
    /// In the 3-D view, on the back plane: the line of the axis, and the edge of the floor or wall on the front plane.
    void drawDepthEdges(VexaRenderContext& context);
    /// Also the stroke of tick marks and grid lines.
    void setThemeStroke(SmartPtr<Stroke> stroke) override;

    bool isCategory() const noexcept { return isCategory_; }
    AxisOrientation getOrientation() const { return *orientation_; }
    void setOrientation(AxisOrientation orientation);
    bool isVertical() const { return *orientation_ != AxisOrientation::Horizontal; }
    AxisIntersection getIntersection() const { return *intersection_; }
    /// Whether the axis lies on the right or at the top.
    bool isAtMaximum() const { return *intersection_ == AxisIntersection::AtMaximum; }
    const AxisUnits& getUnit() const { return *unit_; }
    AxisDataType getDataType() const { return *dataType_; }
    DisplayValPlacement getPlacement() const;
    /// Null without labels.
    VexaDisplayValues* getDisplayValues() const noexcept { return displayValues_.get(); }
    /// Whether the display values fix an end of the axis: with a bound that the axis can show.
    bool hasMin();
    bool hasMax();

    /// From where to where the axis goes: the data's range with the bounds that the document gives. Kept; warns of
    /// bounds that the axis cannot show.
    const AxisRange& getRange();
    /// Replaces the range by one whose ends lie on axis values.
    void setRange(AxisRange range);
    /// Which part of the axis lies below the value, see AxisScale::relativePosition.
    float getRelativePosition(const Value& value);
    /// See AxisScale::slotWidth.
    float getSlotWidth(VexaRenderContext& context, float length);

    /// The axis line in the coordinates of the plot; without width or without height.
    RectF getAxisRect(VexaRenderContext& context);
    /// (0, height of the plot) or (width of the plot, 0).
    SizeF getAxisLength(VexaRenderContext& context);
    /// The coordinate along this axis at which the other axis lies.
    float getCrossOffset(VexaRenderContext& context);
    /// Width of the caption, and its height with all that it needs across the axis; (0, 0) without one.
    SizeF getCaptionSize(VexaRenderContext& context);
    /// How far the tick marks reach outward, px.
    float getTickExtent();
    /// Box of the labels relative to the start of the axis line; empty without labels.
    RectF getLabelsRect(VexaRenderContext& context);
    /// What a label may take at most: the larger of both ends' own texts and of the texts that replace values.
    SizeF getMaxLabelSize(VexaRenderContext& context);
    /// What the axis needs around the plot.
    AxisSpace getSpace(VexaRenderContext& context);
    /// See VexaDisplayValues.
    void dropLabels();
    void dropTexts();

protected:
    explicit VexaAxisObject(bool isCategory) noexcept : isCategory_(isCategory) {}

private:
    /// What the document fixes, and of that what the axis can show.
    AxisRange getBounds() const;
    AxisRange getUsableBounds();
    void tellBounds(const AxisRange& usable);
    // In VexaAxisPainting.cpp.
    void drawAxisLine(VexaRenderContext& context, const RectF& axis);
    void drawLabels(VexaRenderContext& context, const RectF& axis);
    void drawCaption(VexaRenderContext& context, const RectF& axis);

    TXmlAttribute<AxisOrientation> orientation_{DefaultAxisOrientation};
    TXmlAttribute<AxisIntersection> intersection_{DefaultAxisIntersection};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
    TXmlAttribute<AxisUnits> unit_{DefaultAxisUnits};
    TXmlAttribute<AxisDataType> dataType_{DefaultAxisDataType};
    TXmlAttribute<Value> min_{DefaultMinValue};
    TXmlAttribute<Value> max_{DefaultMaxValue};
    XmlObjPtr<VexaTickMarks> tickMarks_;
    XmlObjPtr<VexaDisplayValues> displayValues_;
    XmlObjPtr<VexaGridLine> gridLines_;
    AxisRange range_;
    bool isRangeDirty_ = true;
    bool isCategory_;
};

}  // namespace VEXA
