#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// One pair of category and value of a series.
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

    /// Paints nothing; see VexaPlotArea::render.
    void render(VexaRenderContext& context) override;

private:
    TXmlAttribute<Value> value_{DefaultValue};
    TXmlAttribute<Value> category_{DefaultValue};
    TXmlAttribute<Length> width_{DefaultWidthLength};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
    TXmlAttribute<CaptionPlacement> captionPlacement_{DefaultCaptionPlacement};
    TXmlAttribute<MarkerType> marker_{DefaultMarkerType};
    TXmlAttribute<Length> markerWidth_{DefaultMarkerWidth};
};

}  // namespace VEXA
