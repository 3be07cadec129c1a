#pragma once

#include "vexa/cartesian/VexaAxisObject.h"

namespace VEXA {

/// The axis along which the categories of the data points lie.
class VexaCategoryAxis : public VexaAxisObject {
public:
    class VexaCategoryAxisTypeInfo final : public XmlTypeInfo<VexaCategoryAxis, VexaAxisObject> {
    public:
        VexaCategoryAxisTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    VexaCategoryAxis() noexcept : VexaAxisObject(/*isCategory*/ true) {}
};

}  // namespace VEXA
