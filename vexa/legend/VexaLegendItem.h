#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// A mark and what it stands for.
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

    /// Paints nothing; see VexaLegend::render.
    void render(VexaRenderContext& context) override;

private:
    TXmlAttribute<MarkerType> label_{DefaultMarkerType};
    TXmlAttribute<Length> labelWidth_{DefaultMarkerWidth};
    TXmlAttribute<Length> labelSpacing_{DefaultMarkerSpacing};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
};

}  // namespace VEXA
