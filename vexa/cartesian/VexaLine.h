#pragma once

#include "vexa/cartesian/VexaContainerObject.h"

namespace VEXA {

/// Series drawn as lines.
class VexaLine : public VexaContainerObject {
public:
    class VexaLineTypeInfo final : public XmlTypeInfo<VexaLine, VexaContainerObject> {
    public:
        VexaLineTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    VexaLine() noexcept : VexaContainerObject(ContainerKind::Line) {}
};

}  // namespace VEXA
