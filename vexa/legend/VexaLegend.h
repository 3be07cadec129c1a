#pragma once

#include "vexa/engine/UnpaintedNotice.h"
#include "vexa/legend/VexaLegendItem.h"
#include "vexa/style/VexaAreaObject.h"

namespace VEXA {

/// A box that explains the marks of a chart.
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

    /// Paints nothing and warns of it once: legends are read whole, painting them is no part of this version.
    void render(VexaRenderContext& context) override;
    /// Hands nothing out, as nothing is painted.
    void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) override;

private:
    TXmlAttribute<ReferenceOrientation> orientation_{DefaultReferenceOrientation};
    TXmlAttribute<LegendPlacement> legendPlacement_{DefaultLegendPlacement};
    TXmlAttribute<Length> padding_{DefaultLength};
    XmlObjectList<VexaLegendItem> items_;
    UnpaintedNotice notice_;
};

}  // namespace VEXA
