#pragma once

#include "vexa/style/GradientObject.h"

namespace VEXA {

/// A gradient from a centre outwards, with one radius for both axes. `fx` and `fy` are read and have no effect.
class VexaRadialGradient : public GradientObject {
public:
    class VexaRadialGradientTypeInfo final : public XmlTypeInfo<VexaRadialGradient, VexaElementObject> {
    public:
        VexaRadialGradientTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    static const DefaultAttribute<SLength> DefaultCentre;           ///< 0.5
    static const DefaultAttribute<SLengthOrPercent> DefaultRadius;  ///< 0.5

protected:
    /// A radius in percent has nothing to refer to and is 0.
    SmartPtr<GradientBrush> makeBrush() const override;

    TXmlAttribute<SLength> cx_{DefaultCentre};
    TXmlAttribute<SLength> cy_{DefaultCentre};
    TXmlAttribute<SNullableLength> fx_{DefaultSNullableLength};
    TXmlAttribute<SNullableLength> fy_{DefaultSNullableLength};
    TXmlAttribute<SLengthOrPercent> r_{DefaultRadius};
};

}  // namespace VEXA
