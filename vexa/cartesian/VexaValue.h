#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// The text that stands for one value of an axis.
class VexaValue : public VexaElementObject {
public:
    class VexaValueTypeInfo final : public XmlTypeInfo<VexaValue, VexaElementObject> {
    public:
        VexaValueTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing: a value is read by the labels of its axis.
    void render(VexaRenderContext& context) override;

    /// The axis value that the text stands for.
    const Value& getValue() const { return *value_; }
    const String& getDisplay() const { return *display_; }

private:
    TXmlAttribute<Value> value_{DefaultValue};
    TXmlAttribute<String> display_{DefaultStringAttribute};
};

}  // namespace VEXA
