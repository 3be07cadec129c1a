#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// A line of text anywhere on the page, for a source or a remark.
class VexaNote : public VexaElementObject {
public:
    class VexaNoteTypeInfo final : public XmlTypeInfo<VexaNote, VexaElementObject> {
    public:
        VexaNoteTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints the text in the caption's colour, its baseline starting at (x, y).
    void render(VexaRenderContext& context) override;

private:
    TXmlAttribute<Length> x_{DefaultLength};
    TXmlAttribute<Length> y_{DefaultLength};
    TXmlAttribute<String> value_{DefaultStringAttribute};
};

}  // namespace VEXA
