#pragma once

#include "vexa/pie/VexaSlice.h"
#include "vexa/style/VexaAreaObject.h"

namespace VEXA {

/// A pie or a doughnut of slices, flat or in an oblique 3-D view.
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

    /// The pie that a slice belongs to. Throws NullPointerException when it belongs to none.
    static VexaPie& of(const VexaSlice& slice);

    /// Paints the background, the slices, and the captions that have room. The first render with `labels-position`
    /// `fit` shrinks the area to a pie that leaves the captions their room, and clips to what the area was. The first
    /// one with captions hides those that leave that area, and those that overlap earlier ones. Warns of a pie of which
    /// only the background can be painted: without a total or without room.
    void render(VexaRenderContext& context) override;
    /// Hands the palette to the slices, the first colour to the last one.
    void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) override;
    /// The number of slices.
    int getSerieCount() override;

    bool isDoughnut() const { return *pieShape_ == PieShapeType::Doughnut; }
    const XmlObjectList<VexaSlice>& getSlices() const { return slices_; }
    bool showsCaptions() const { return *showCaptions_; }
    bool showsConnectors() const { return *showConnectors_; }
    bool wrapsCaptions() const { return *captionWrap_; }
    SmartPtr<Color> getConnectorsColor() const { return *connectorsColor_; }
    /// How many captions the render left out because they would lie over others.
    std::size_t getOverlappedCaptions() const noexcept { return overlapped_; }
    /// What all connectors of this pie are drawn with.
    const SmartPtr<Stroke>& getConnectorStroke();
    /// The room for captions in px; a percentage is one of the shorter side of the area, and of 30 px at least.
    float getCaptionSize() const;

    static const DefaultAttribute<LengthOrPercent> DefaultCaptionSize;  ///< 15%

private:
    void fit(VexaRenderContext& context);
    float takeCaptionMargin();
    bool layoutSlices(VexaRenderContext& context);
    bool canPaint(const SizeF& size, double total) const;
    void checkCaptions(VexaRenderContext& context);
    bool leavesArea(RectF box, PointF origin) const;
    void hideCaptionsThatOverlap();
    void drawSlices(VexaRenderContext& context);
    double getTotal() const;
    bool hasCaptions() const { return captionsFit_ && *showCaptions_; }

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
    SmartPtr<Stroke> connectorStroke_;  // made when first asked for
    RectF areaRect_;                    // as it was when the present render began
    bool fitted_ = false;
    bool captionsChecked_ = false;
    bool captionsFit_ = true;
    std::size_t overlapped_ = 0;
};

}  // namespace VEXA
