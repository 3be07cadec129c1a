#pragma once

#include "vexa/style/VexaElementObject.h"

namespace VEXA {

/// One colour on the way of a gradient.
class VexaGradientStop : public VexaElementObject {
public:
    class VexaGradientStopTypeInfo final : public XmlTypeInfo<VexaGradientStop, VexaElementObject> {
    public:
        VexaGradientStopTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    SmartPtr<Color> getColor() const { return *stopColor_; }
    float getOpacity() const { return stopOpacity_->getValue(); }
    /// 0 at the gradient's start, 1 at its end.
    float getOffset() const { return offset_->getValue(); }

    /// Paints nothing.
    void render(VexaRenderContext& context) override;

protected:
    TXmlAttribute<SmartPtr<Color>> stopColor_{DefaultGradientStopColor};
    TXmlAttribute<FloatOrPercent> stopOpacity_{DefaultFloatOrPercent};
    TXmlAttribute<FloatOrPercent> offset_{DefaultFloatOrPercent};
};

}  // namespace VEXA
