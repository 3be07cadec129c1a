#pragma once

#include "vexa/style/GradientObject.h"

namespace VEXA {

/// A gradient along a line, by default from the left to the right of what it paints.
class VexaLinearGradient : public GradientObject {
public:
    class VexaLinearGradientTypeInfo final : public XmlTypeInfo<VexaLinearGradient, VexaElementObject> {
    public:
        VexaLinearGradientTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    static const DefaultAttribute<SLength> DefaultX2;  ///< 1

protected:
    SmartPtr<GradientBrush> makeBrush() const override;

    TXmlAttribute<SLength> x1_{DefaultSLength};
    TXmlAttribute<SLength> y1_{DefaultSLength};
    TXmlAttribute<SLength> x2_{DefaultX2};
    TXmlAttribute<SLength> y2_{DefaultSLength};
};

}  // namespace VEXA
