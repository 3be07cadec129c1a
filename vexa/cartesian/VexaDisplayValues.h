#pragma once

#include "vexa/cartesian/VexaValue.h"
#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// The labels of an axis.
class VexaDisplayValues : public VexaElementObject {
public:
    class VexaDisplayValuesTypeInfo final : public XmlTypeInfo<VexaDisplayValues, VexaElementObject> {
    public:
        VexaDisplayValuesTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing; see VexaPlotArea::render.
    void render(VexaRenderContext& context) override;

private:
    TXmlAttribute<bool> drawValues_{DefaultTrueBoolAttribute};
    TXmlAttribute<bool> replaceValues_{DefaultTrueBoolAttribute};
    TXmlAttribute<bool> adjustValues_{DefaultTrueBoolAttribute};
    TXmlAttribute<bool> drawAtMin_{DefaultTrueBoolAttribute};
    TXmlAttribute<Length> offset_{DefaultCaptionOffset};
    TXmlAttribute<Value> min_{DefaultMinValue};
    TXmlAttribute<Value> max_{DefaultMaxValue};
    TXmlAttribute<DisplayValPlacement> placement_{DefaultDisplayValPlacement};
    TXmlAttribute<DisplayValOrientation> orientation_{DefaultDisplayValOrientation};
    TXmlAttribute<String> format_{DefaultStringAttribute};
    XmlObjectList<VexaValue> values_;
};

}  // namespace VEXA
