#pragma once

#include "vexa/engine/VexaObject.h"

namespace VEXA {

/// Definitions that fills and strokes refer to.
class VexaDefs : public VexaObject {
public:
    class VexaDefsTypeInfo final : public XmlTypeInfo<VexaDefs, VexaObject> {
    public:
        VexaDefsTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing.
    void render(VexaRenderContext& context) override;
    /// The first definition that the reference "#id" names; empty when none does, or without the "#".
    XmlObjPtr<VexaObject> findObject(const String& reference) override;
    const XmlObjectList<VexaObject>& getDefinitions() const noexcept { return definitions_; }

protected:
    XmlObjectList<VexaObject> definitions_;
};

}  // namespace VEXA
