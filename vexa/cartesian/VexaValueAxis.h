#pragma once

#include "vexa/cartesian/VexaAxisObject.h"

namespace VEXA {

/// The axis along which the values of the data points lie.
class VexaValueAxis : public VexaAxisObject {
public:
    class VexaValueAxisTypeInfo final : public XmlTypeInfo<VexaValueAxis, VexaAxisObject> {
    public:
        VexaValueAxisTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    VexaValueAxis() noexcept : VexaAxisObject(/*isCategory*/ false) {}
};

}  // namespace VEXA
