#pragma once

#include <optional>

#include "vexa/pie/CaptionLayout.h"
#include "vexa/pie/SliceWalls.h"
#include "vexa/style/VexaElementObject.h"

namespace VEXA {

class VexaPie;

/// One slice of a pie. The pie tells it its geometry and then asks it, in passes over all slices, to lay out its
/// caption and to paint its walls, its body and its caption, all in the pie's own coordinates. Those operations throw
/// NullPointerException for a slice outside a pie.
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

    /// Paints the body, which is the top face in the 3-D view. A slice without extent leaves no mark, walls included.
    void render(VexaRenderContext& context) override;
    /// Paints what shows of the outer or the inner rim in the 3-D view.
    void drawOuterWall(VexaRenderContext& context);
    void drawInnerWall(VexaRenderContext& context);

    /// Breaks the caption into lines, places it and answers its box. A slice without a caption keeps the box it had.
    const RectF& layoutCaption(VexaRenderContext& context);
    /// Paints the caption and its connector, unless it is hidden.
    void drawCaption(VexaRenderContext& context);

    void setGeometry(const SliceGeometry& geometry) noexcept { geometry_ = geometry; }
    const RectF& getCaptionRect() const noexcept { return layout_.box; }
    bool isCaptionVisible() const noexcept { return isCaptionVisible_; }
    /// Whether the caption size had no room for some or all of the caption.
    bool isCaptionCut() const noexcept { return isCaptionCut_; }
    /// For good: later renders do not show it either.
    void hideCaption() noexcept { isCaptionVisible_ = false; }

    /// What the slice's share of the pie is counted by.
    float getAbsValue() const noexcept;
    const String& getCaption() const { return *caption_; }
    /// Whether there is one that is not blank.
    bool hasCaption() const { return !caption_->trim().isEmpty(); }
    /// In px.
    float getCaptionOffset() const { return captionOffset_->pxSize(); }

private:
    bool hasExtent() const noexcept { return getAbsValue() != 0 && !geometry_.isEmpty(); }
    void setPaint(VexaRenderContext& context, ColorAspect aspect, float amount);
    void drawWall(VexaRenderContext& context, const std::optional<WallEnds>& ends, const SizeF& radii);
    SizeF breakCaption(VexaRenderContext& context, const VexaPie& pie, const SizeF& oneLine);
    void drawConnector(VexaRenderContext& context);

    TXmlAttribute<float> value_{DefaultFloatAttribute};
    TXmlAttribute<String> caption_{DefaultStringAttribute};
    TXmlAttribute<CaptionPlacement> captionPlacement_{DefaultCaptionPlacement};
    SliceGeometry geometry_;
    CaptionLayout layout_;
    Vector<String> captionLines_;
    float lineHeight_ = 0;
    bool isCaptionVisible_ = true;
    bool isCaptionCut_ = false;
};

}  // namespace VEXA
