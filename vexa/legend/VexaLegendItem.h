#pragma once

#include <optional>

#include "vexa/legend/LegendCaption.h"
#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// A marker and what it stands for.
class VexaLegendItem : public VexaElementObject {
public:
    class VexaLegendItemTypeInfo final : public XmlTypeInfo<VexaLegendItem, VexaElementObject> {
    public:
        VexaLegendItemTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints the marker and, beside it, the caption. Throws UnreacheableCodeException for a label that is no marker.
    void render(VexaRenderContext& context) override;
    /// What a dash is drawn with where the document gives no stroke.
    virtual void setThemeLineStroke(SmartPtr<Stroke> stroke);

    /// With the caption on one line, measured upright and in normal weight: the steps of a row.
    SizeF getItemSize(VexaRenderContext& context);
    /// Breaks the caption to what the maximal width leaves it, for the next render too, and answers the rectangle that
    /// the item then takes at its position.
    RectF layout(VexaRenderContext& context);
    /// What the last layout answered, or what was set since.
    RectF getItemRect() const noexcept { return itemRect_; }
    /// Moves the item, its position too.
    void setItemRect(const RectF& rect) noexcept;
    /// Whether the last layout had no room for some or all of the caption.
    bool isCaptionCut() const;

    /// The top left corner, in the legend. Does not move the rectangle of the last layout.
    void setPosition(PointF position) noexcept { position_ = position; }
    /// What the item may take of a row, in px.
    void setMaxWidth(float width) noexcept;
    Length getLabelSpacing() const { return *labelSpacing_; }

private:
    void wrapCaption(VexaRenderContext& context);
    void drawLabel(VexaRenderContext& context);
    void drawCaption(VexaRenderContext& context);

    TXmlAttribute<MarkerType> label_{DefaultMarkerType};
    TXmlAttribute<Length> labelWidth_{DefaultMarkerWidth};
    TXmlAttribute<Length> labelSpacing_{DefaultMarkerSpacing};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
    PointF position_;
    float maxWidth_ = 0;
    RectF itemRect_;
    SmartPtr<Stroke> themeLineStroke_;
    std::optional<LegendCaption> wrapped_;  // from the layout until it is drawn
};

}  // namespace VEXA
