#pragma once

#include "vexa/style/VexaElementObject.h"
#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

class ChartPass;
class PointStyle;
struct BarAnchors;
struct PointPlace;

/// One pair of category and value of a series. It paints its own bar, and in every chart its caption and its marker;
/// one without value paints nothing.
class VexaDataPoint : public VexaElementObject {
public:
    class VexaDataPointTypeInfo final : public XmlTypeInfo<VexaDataPoint, VexaElementObject> {
    public:
        VexaDataPointTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// The bar of a bar chart, nothing in other charts. The one call finds the point in its series; the other is told
    /// where it stands and shares its style with its neighbours. Both passes throw NullPointerException outside a plot.
    void render(VexaRenderContext& context) override;
    void render(VexaRenderContext& context, const ChartPass& pass, PointPlace place, PointStyle& style);
    /// Caption and marker, unless the plot area shows none. Throws UnreacheableCodeException for an unknown marker.
    virtual void renderOverlay(VexaRenderContext& context);
    void renderOverlay(VexaRenderContext& context, const ChartPass& pass, PointPlace place, PointStyle& style);

    /// Where the value lies, in px of the plot, and the same category at the origin of the value axis, before bars are
    /// placed among each other.
    void getValuePoint(VexaRenderContext& context, float& x, float& y) const;
    void getBasePoint(VexaRenderContext& context, float& x, float& y) const;

    /// No value where the document gives none.
    const Value& getCategory() const { return *category_; }
    const Value& getValue() const { return *value_; }
    /// Of the bar, across the category axis, in px.
    float getWidth() const { return width_->pxSize(); }
    const SmartPtr<Color>& getCaptionColor() const { return *captionColor_; }
    /// Whether all that fills, strokes and fonts are made of comes from the same places.
    bool isStyledLike(const VexaDataPoint& other) const noexcept;

private:
    BarAnchors getAnchors(VexaRenderContext& context) const;
    bool hasOverlay() const;
    void drawFlat(VexaRenderContext& context, const ChartPass& pass, const BarAnchors& bar);
    void drawBox(VexaRenderContext& context, const ChartPass& pass, PointPlace place, PointStyle& style);
    void drawCylinder(VexaRenderContext& context, const ChartPass& pass, PointPlace place, PointStyle& style);
    void drawCaption(VexaRenderContext& context, const ChartPass& pass, const BarAnchors& bar, PointStyle& style);
    void drawPointMarker(VexaRenderContext& context, const ChartPass& pass, PointF centre);

    TXmlAttribute<Value> value_{DefaultValue};
    TXmlAttribute<Value> category_{DefaultValue};
    TXmlAttribute<Length> width_{DefaultWidthLength};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
    TXmlAttribute<CaptionPlacement> captionPlacement_{DefaultCaptionPlacement};
    TXmlAttribute<MarkerType> marker_{DefaultMarkerType};
    TXmlAttribute<Length> markerWidth_{DefaultMarkerWidth};
};

}  // namespace VEXA
