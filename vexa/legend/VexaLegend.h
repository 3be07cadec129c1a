#pragma once

#include "vexa/legend/VexaLegendItem.h"
#include "vexa/style/VexaAreaObject.h"

namespace VEXA {

/// A box that explains the marks of a chart: docked to an edge of the page, or placed freely. Its items stand in one
/// row when they fit into its width, else one below the other.
class VexaLegend : public VexaAreaObject {
public:
    class VexaLegendTypeInfo final : public XmlTypeInfo<VexaLegend, VexaAreaObject> {
    public:
        VexaLegendTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Lays the items out and paints them above the background. A docked legend takes its place first, which replaces
    /// its x, y, width and height by px. Warns of captions and items that do not show. Throws UnreacheableCodeException
    /// for an orientation that is none and what the items throw, and NullPointerException when a docked legend stands
    /// in no page.
    void render(VexaRenderContext& context) override;
    /// Hands the theme's colours to the items, its first one to the last item, as charts do with their series.
    void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) override;

    const XmlObjectList<VexaLegendItem>& getItems() const { return items_; }

private:
    VexaAreaObject& getPage();
    void arrange(VexaRenderContext& context);
    Vector<RectF> layoutItems(VexaRenderContext& context);
    void fit(VexaRenderContext& context, Vector<RectF>& items);
    void tellHidden(VexaRenderContext& context, const Vector<RectF>& items);
    void turn(VexaRenderContext& context, const SizeF& box);

    TXmlAttribute<ReferenceOrientation> orientation_{DefaultReferenceOrientation};
    TXmlAttribute<LegendPlacement> legendPlacement_{DefaultLegendPlacement};
    TXmlAttribute<Length> padding_{DefaultLength};
    XmlObjectList<VexaLegendItem> items_;
};

}  // namespace VEXA
