#pragma once

#include "vexa/engine/VexaObject.h"
#include "vexa/style/PaintStyle.h"
#include "vexa/style/StyleDefaults.h"
#include "vexa/style/VexaRenderContext.h"
#include "vexa/style/VexaTheme.h"

namespace VEXA {

/// Base of the rectangular parts of a chart: root, plot area, pie, spider, legend. Resolves position and size, font,
/// fill and stroke, and paints the background.
class VexaAreaObject : public VexaObject {
public:
    class VexaAreaObjectTypeInfo final : public XmlTypeInfo<VexaAreaObject, VexaObject> {
    public:
        VexaAreaObjectTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// Hands the theme's fills and strokes to the area and what is in it.
    virtual void preRender(VexaRenderContext& context, SmartPtr<VexaTheme> theme) = 0;
    /// How many colours the area asks of a theme.
    virtual int getSerieCount();
    /// Paints the area's rectangle with its own fill and stroke; what those leave out stays as the caller set it.
    virtual void drawBackground(VexaRenderContext& context);
    /// What to paint with where the document gives no fill or no stroke.
    virtual void setThemeFill(SmartPtr<Brush> fill);
    virtual void setThemeStroke(SmartPtr<Stroke> stroke);

    /// In px; percentages are of the context's reference size.
    SizeF getAreaSize(VexaRenderContext& context);
    RectF getAreaRect(VexaRenderContext& context);
    /// Replaces position and size by px.
    void setAreaRect(const RectF& rect);

    /// In px.
    float getSceneDepth() { return sceneDepth_->pxSize(); }
    float getChartDepth() { return chartDepth_->pxSize(); }
    bool isView3DMode() { return *view3D_; }
    /// The amount that side faces are darkened by in the 3-D view.
    float getAspectShading() { return *shading_; }
    ChartTheme getTheme() const { return *theme_; }

protected:
    VexaAreaObject() noexcept = default;

    /// In px.
    float getStrokeWidth() { return strokeWidth_->pxSize(); }
    SmartPtr<Font> getFont(VexaRenderContext& context);
    /// The document's fill; where it gives none, a shaded copy of the theme's. Empty for `none`.
    SmartPtr<Brush> getFillBrush(ColorAspect aspect, float amount);
    /// The document's stroke; where it gives none, the theme's own one, unshaded. Empty for `none`.
    SmartPtr<Stroke> getStrokeBrush(ColorAspect aspect, float amount);
    /// See PaintStyle::makeGradient and PaintStyle::adjustBrush.
    SmartPtr<Brush> getGradientBrush(const String& reference, ColorAspect aspect, float amount);
    SmartPtr<Brush> adjustBrush(SmartPtr<Brush> brush, ColorAspect aspect, float amount);
    /// Sets font, fill and stroke of the surface; an empty fill or stroke leaves what was there. Call inside a scope.
    void updateRenderContext(VexaRenderContext& context, ColorAspect aspect, float amount);

    TXmlAttribute<Length> x_{DefaultLength};
    TXmlAttribute<Length> y_{DefaultLength};
    TXmlAttribute<LengthOrPercent> width_{DefaultOneHundredPercent};
    TXmlAttribute<LengthOrPercent> height_{DefaultOneHundredPercent};
    TXmlAttribute<LabelsPosition> labelsPosition_{DefaultLabelsPosition};
    TXmlAttribute<bool> view3D_{DefaultFalseBoolAttribute};
    TXmlAttribute<float> shading_{DefaultAspect3DShading};
    TXmlAttribute<Length> sceneDepth_{DefaultAspect3DSceneDepth};
    TXmlAttribute<Length> chartDepth_{DefaultAspect3DChartDepth};
    TXmlAttribute<String> fontFamily_{DefaultFontFamily};
    TXmlAttribute<LengthOrPercent> fontSize_{DefaultChartFontSize};
    TXmlAttribute<FontStyle> fontStyle_{DefaultFontStyle};
    TXmlAttribute<FontWeight> fontWeight_{DefaultFontWeight};
    TXmlAttribute<SNullableColor> fill_{DefaultSNullableFillColor};
    TXmlAttribute<SNullableColor> stroke_{DefaultSNullableStrokeColor};
    TXmlAttribute<SLength> strokeWidth_{DefaultStrokeWidth};
    TXmlAttribute<Length> dashOffset_{DefaultLength};
    TXmlAttribute<SLineCap> lineCap_{DefaultSLineCap};
    TXmlAttribute<SLineJoin> lineJoin_{DefaultSLineJoin};
    TXmlAttribute<SLength> miterLimit_{DefaultMiterLimit};
    TXmlAttribute<Vector<SLength>> dashArray_{DefaultSDashPattern};
    TXmlAttribute<FloatOrPercent> opacity_{DefaultFloatOrPercent};
    TXmlAttribute<FloatOrPercent> fillOpacity_{DefaultFloatOrPercent};
    TXmlAttribute<FloatOrPercent> strokeOpacity_{DefaultFloatOrPercent};
    TXmlAttribute<SmartPtr<Color>> captionColor_{DefaultFillColor};
    TXmlAttribute<ChartTheme> theme_{DefaultChartTheme};
    SmartPtr<Brush> themeFill_;
    SmartPtr<Stroke> themeStroke_;
};

}  // namespace VEXA
