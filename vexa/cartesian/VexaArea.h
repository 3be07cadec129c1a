#pragma once

#include "vexa/cartesian/VexaContainerObject.h"

namespace VEXA {

/// Series drawn as filled areas.
class VexaArea : public VexaContainerObject {
public:
    class VexaAreaTypeInfo final : public XmlTypeInfo<VexaArea, VexaContainerObject> {
    public:
        VexaAreaTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    VexaArea() noexcept : VexaContainerObject(ContainerKind::Area) {}
};

}  // namespace VEXA
