#pragma once

#include "vexa/engine/UnpaintedNotice.h"
#include "vexa/pie/VexaSlice.h"
#include "vexa/style/VexaAreaObject.h"

namespace VEXA {

/// A pie or a doughnut of slices.
class VexaPie : public VexaAreaObject {
public:
    class VexaPieTypeInfo final : public XmlTypeInfo<VexaPie, VexaAreaObject> {
    public:
        VexaPieTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Paints nothing and warns of it once: pies are read whole, painting them is no part of this version.
    void render(VexaRenderContext& context) override;
    /// Hands nothing out, as nothing is painted.
    void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) override;
    /// The number of slices.
    int getSerieCount() override;

    bool isDoughnut() const { return *pieShape_ == PieShapeType::Doughnut; }
    const XmlObjectList<VexaSlice>& getSlices() const { return slices_; }

    static const DefaultAttribute<LengthOrPercent> DefaultCaptionSize;  ///< 15%

private:
    TXmlAttribute<float> startAngle_{DefaultFloatAttribute};
    TXmlAttribute<SliceOrientation> sliceOrientation_{DefaultSliceOrientation};
    TXmlAttribute<PieShapeType> pieShape_{DefaultPieShapeType};
    TXmlAttribute<bool> showConnectors_{DefaultFalseBoolAttribute};
    TXmlAttribute<SmartPtr<Color>> connectorsColor_{DefaultFillColor};
    TXmlAttribute<bool> showCaptions_{DefaultTrueBoolAttribute};
    TXmlAttribute<LengthOrPercent> captionSize_{DefaultCaptionSize};
    TXmlAttribute<bool> captionWrap_{DefaultTrueBoolAttribute};
    TXmlAttribute<CaptionPlacement> captionPlacement_{DefaultCaptionPlacement};
    XmlObjectList<VexaSlice> slices_;
    UnpaintedNotice notice_;
};

}  // namespace VEXA
