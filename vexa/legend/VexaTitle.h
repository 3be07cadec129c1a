#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// A box with a text that is wrapped to its width.
class VexaTitle : public VexaElementObject {
public:
    class VexaTitleTypeInfo final : public XmlTypeInfo<VexaTitle, VexaElementObject> {
    public:
        VexaTitleTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints the box and then the text from its top left corner on; what exceeds the box is cut off, with a
    /// warning.
    void render(VexaRenderContext& context) override;
    /// The two attributes; percentages are of the context's reference size.
    virtual LengthOrPercent getWidth();
    virtual LengthOrPercent getHeight();

    const String& getValue() const { return *value_; }

private:
    void drawValue(VexaRenderContext& context, const SizeF& box);

    TXmlAttribute<Length> x_{DefaultLength};
    TXmlAttribute<Length> y_{DefaultLength};
    TXmlAttribute<LengthOrPercent> width_{DefaultTitleWidth};
    TXmlAttribute<LengthOrPercent> height_{DefaultTitleHeight};
    TXmlAttribute<String> value_{DefaultStringAttribute};
    TXmlAttribute<SmartPtr<Color>> valueColor_{DefaultFillColor};
};

}  // namespace VEXA
