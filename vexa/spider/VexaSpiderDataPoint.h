#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// One value of a series, tied to the axis that it belongs to by that axis's id.
class VexaSpiderDataPoint : public VexaElementObject {
public:
    class VexaSpiderDataPointTypeInfo final : public XmlTypeInfo<VexaSpiderDataPoint, VexaElementObject> {
    public:
        VexaSpiderDataPointTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing: a point is a corner of its series.
    void render(VexaRenderContext& context) override;

    bool hasAxisId() const { return !(axisId_ == DefaultStringAttribute); }
    /// Throws Exception 34000 when the document gives none.
    const String& getAxisId() const;
    float getValue() const { return *value_; }

private:
    TXmlAttribute<float> value_{DefaultFloatAttribute};
    TXmlAttribute<String> axisId_{DefaultStringAttribute};
};

}  // namespace VEXA
