#pragma once

#include "vexa/engine/VexaObject.h"
#include "vexa/style/PaintStyle.h"
#include "vexa/style/StyleDefaults.h"
#include "vexa/style/VexaRenderContext.h"

namespace VEXA {

/// Base of every styled element that is no area: axes, series, data points, slices, titles, legend items, gradients.
/// All its styling attributes are inherited.
class VexaElementObject : public VexaObject {
public:
    class VexaElementObjectTypeInfo final : public XmlTypeInfo<VexaElementObject, VexaObject> {
    public:
        VexaElementObjectTypeInfo();
        static void initTypeInfo(XmlObjectTypeInfo* info);
    };

    static XmlObjectTypeInfo* getTypeInfoInstance();
    static int typeID() { return getTypeInfoInstance()->typeID(); }
    XmlObjectTypeInfo* getTypeInfo() const override { return getTypeInfoInstance(); }

    /// What to paint with where the document gives no fill or no stroke.
    virtual void setThemeFill(SmartPtr<Brush> fill);
    virtual void setThemeStroke(SmartPtr<Stroke> stroke);

    /// Fill and stroke that the document gives; empty for `none` and where it gives none.
    SmartPtr<Brush> getUserFillBrush(ColorAspect aspect, float amount);
    SmartPtr<Stroke> getUserStrokeBrush(ColorAspect aspect, float amount);
    /// The document's fill; where that is empty, `none` included, a shaded copy of the theme's.
    SmartPtr<Brush> getFillBrush(ColorAspect aspect, float amount);
    /// The document's stroke; where it gives none, the theme's own one, unshaded. A stroke-width of 1 px is written
    /// into the theme's stroke, which other elements share.
    SmartPtr<Stroke> getStrokeBrush(ColorAspect aspect, float amount);
    /// The gradient that makes a bar look like a cylinder: across it, from dark over the main colour to dark. The main
    /// colour is that of the document's fill or else of the theme's; `amount` darkens the edges. Empty without a
    /// colour.
    SmartPtr<Brush> getCylinderFillBrush(AxisOrientation orientation, float amount);
    SmartPtr<Font> getFont(VexaRenderContext& context);
    /// Sets font, fill and stroke of the surface; an empty fill or stroke leaves what was there. Call inside a scope.
    void updateRenderContext(VexaRenderContext& context, ColorAspect aspect, float amount);

protected:
    VexaElementObject() noexcept = default;

    /// In px.
    float getStrokeWidth() { return strokeWidth_->pxSize(); }
    /// See PaintStyle::makeGradient and PaintStyle::adjustBrush.
    SmartPtr<Brush> getGradientBrush(const String& reference, ColorAspect aspect, float amount);
    SmartPtr<Brush> adjustBrush(SmartPtr<Brush> brush, ColorAspect aspect, float amount);

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
    TXmlAttribute<String> fontFamily_{DefaultFontFamily};
    TXmlAttribute<LengthOrPercent> fontSize_{DefaultChartFontSize};
    TXmlAttribute<FontStyle> fontStyle_{DefaultFontStyle};
    TXmlAttribute<FontWeight> fontWeight_{DefaultFontWeight};
    TXmlAttribute<SmartPtr<Color>> captionColor_{DefaultFillColor};
    TXmlAttribute<Length> captionOffset_{DefaultCaptionOffset};
    SmartPtr<Brush> themeFill_;
    SmartPtr<Stroke> themeStroke_;
};

}  // namespace VEXA
