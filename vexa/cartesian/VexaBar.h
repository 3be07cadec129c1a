#pragma once

#include "vexa/cartesian/VexaContainerObject.h"

namespace VEXA {

/// Series drawn as bars.
class VexaBar : public VexaContainerObject {
public:
    class VexaBarTypeInfo final : public XmlTypeInfo<VexaBar, VexaContainerObject> {
    public:
        VexaBarTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

private:
    TXmlAttribute<Length> clusterSpacing_{DefaultLength};
    TXmlAttribute<BarShapeType> barShape_{DefaultBarShapeType};
};

}  // namespace VEXA
