#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// One slice of a pie.
class VexaSlice : public VexaElementObject {
public:
    class VexaSliceTypeInfo final : public XmlTypeInfo<VexaSlice, VexaElementObject> {
    public:
        VexaSliceTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing; see VexaPie::render.
    void render(VexaRenderContext& context) override;

    const String& getCaption() const { return *caption_; }

private:
    TXmlAttribute<float> value_{DefaultFloatAttribute};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
    TXmlAttribute<CaptionPlacement> captionPlacement_{DefaultCaptionPlacement};
};

}  // namespace VEXA
