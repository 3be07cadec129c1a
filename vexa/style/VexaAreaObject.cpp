#include "vexa/style/VexaAreaObject.h"

namespace VEXA {

namespace {

constexpr StyleLocations kLocations{"VexaAreaObject", 139, 182, 221, 237, 341, 355};

}  // namespace

VexaAreaObject::VexaAreaObjectTypeInfo::VexaAreaObjectTypeInfo()
    : XmlTypeInfo("VexaAreaObject", "", chartNamespace(), &initTypeInfo, 11) {}

void VexaAreaObject::VexaAreaObjectTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "x", space, &VexaAreaObject::x_, DefaultLength, false);
    addAttributeTypeInfo(info, "y", space, &VexaAreaObject::y_, DefaultLength, false);
    addAttributeTypeInfo(info, "width", space, &VexaAreaObject::width_, DefaultOneHundredPercent, false);
    addAttributeTypeInfo(info, "height", space, &VexaAreaObject::height_, DefaultOneHundredPercent, false);
    addAttributeTypeInfo(info, "aspect-3d-view", space, &VexaAreaObject::view3D_, DefaultFalseBoolAttribute, false);
    addAttributeTypeInfo(info, "aspect-3d-scene-depth", space, &VexaAreaObject::sceneDepth_, DefaultAspect3DSceneDepth,
                         false);
    addAttributeTypeInfo(info, "aspect-3d-chart-depth", space, &VexaAreaObject::chartDepth_, DefaultAspect3DChartDepth,
                         false);
    addAttributeTypeInfo(info, "aspect-3d-shading", space, &VexaAreaObject::shading_, DefaultAspect3DShading, false);
    addAttributeTypeInfo(info, "labels-position", space, &VexaAreaObject::labelsPosition_, DefaultLabelsPosition,
                         false);
    addAttributeTypeInfo(info, "theme", space, &VexaAreaObject::theme_, DefaultChartTheme, true);
    addAttributeTypeInfo(info, "caption-color", space, &VexaAreaObject::captionColor_, DefaultFillColor, true);
    addAttributeTypeInfo(info, "font-family", space, &VexaAreaObject::fontFamily_, DefaultFontFamily, true);
    addAttributeTypeInfo(info, "font-size", space, &VexaAreaObject::fontSize_, DefaultChartFontSize, true);
    addAttributeTypeInfo(info, "font-weight", space, &VexaAreaObject::fontWeight_, DefaultFontWeight, true);
    addAttributeTypeInfo(info, "font-style", space, &VexaAreaObject::fontStyle_, DefaultFontStyle, true);
    addAttributeTypeInfo(info, "fill", space, &VexaAreaObject::fill_, DefaultSNullableFillColor, false);
    addAttributeTypeInfo(info, "fill-opacity", space, &VexaAreaObject::fillOpacity_, DefaultFloatOrPercent, false);
    addAttributeTypeInfo(info, "stroke", space, &VexaAreaObject::stroke_, DefaultSNullableStrokeColor, false);
    addAttributeTypeInfo(info, "stroke-opacity", space, &VexaAreaObject::strokeOpacity_, DefaultFloatOrPercent, false);
    addAttributeTypeInfo(info, "stroke-width", space, &VexaAreaObject::strokeWidth_, DefaultStrokeWidth, false);
    addAttributeTypeInfo(info, "stroke-linecap", space, &VexaAreaObject::lineCap_, DefaultSLineCap, false);
    addAttributeTypeInfo(info, "stroke-linejoin", space, &VexaAreaObject::lineJoin_, DefaultSLineJoin, false);
    addAttributeTypeInfo(info, "stroke-miterlimit", space, &VexaAreaObject::miterLimit_, DefaultMiterLimit, false);
    addAttributeTypeInfo(info, "stroke-dasharray", space, &VexaAreaObject::dashArray_, DefaultSDashPattern, false);
    addAttributeTypeInfo(info, "stroke-dashoffset", space, &VexaAreaObject::dashOffset_, DefaultLength, false);
    addAttributeTypeInfo(info, "opacity", space, &VexaAreaObject::opacity_, DefaultFloatOrPercent, false);
}

XmlObjectTypeInfo* VexaAreaObject::getTypeInfoInstance() {
    static Immortal<VexaAreaObjectTypeInfo> info;
    return &info.value;
}

int VexaAreaObject::getSerieCount() { return 1; }

void VexaAreaObject::drawBackground(VexaRenderContext& context) {
    const RenderContextScope scope(context.getRenderContext());
    updateRenderContext(context, ColorAspect::Normal, 0.5F);
    const SizeF size = getAreaSize(context);
    context.drawRectangle(*x_, *y_, LengthOrPercent(Length(size.width)), LengthOrPercent(Length(size.height)),
                          LengthOrPercent(), LengthOrPercent());
}

void VexaAreaObject::setThemeFill(SmartPtr<Brush> fill) { themeFill_ = std::move(fill); }

void VexaAreaObject::setThemeStroke(SmartPtr<Stroke> stroke) { themeStroke_ = std::move(stroke); }

SizeF VexaAreaObject::getAreaSize(VexaRenderContext& context) {
    return {context.pxWidth(*width_), context.pxHeight(*height_)};
}

RectF VexaAreaObject::getAreaRect(VexaRenderContext& context) {
    const SizeF size = getAreaSize(context);
    return {x_->pxSize(), y_->pxSize(), size.width, size.height};
}

void VexaAreaObject::setAreaRect(const RectF& rect) {
    x_.setValue(Length(rect.x));
    y_.setValue(Length(rect.y));
    width_.setValue(LengthOrPercent(Length(rect.width)));
    height_.setValue(LengthOrPercent(Length(rect.height)));
}

SmartPtr<Font> VexaAreaObject::getFont(VexaRenderContext& context) {
    return PaintStyle(*this, kLocations).makeFont({fontFamily_, fontSize_, fontStyle_, fontWeight_}, context);
}

SmartPtr<Brush> VexaAreaObject::getFillBrush(ColorAspect aspect, float amount) {
    if (fill_->isNull()) return adjustBrush(themeFill_, aspect, amount);
    return PaintStyle(*this, kLocations).makeFill(fill_->getSColor(), {fillOpacity_, opacity_}, aspect, amount);
}

SmartPtr<Stroke> VexaAreaObject::getStrokeBrush(ColorAspect aspect, float amount) {
    if (stroke_->isNull()) return themeStroke_;
    return PaintStyle(*this, kLocations)
        .makeStroke(
            stroke_->getSColor(),
            {strokeWidth_, lineCap_, lineJoin_, miterLimit_, dashArray_, dashOffset_, {strokeOpacity_, opacity_}},
            aspect, amount);
}

SmartPtr<Brush> VexaAreaObject::getGradientBrush(const String& reference, ColorAspect aspect, float amount) {
    return PaintStyle(*this, kLocations).makeGradient(reference, aspect, amount);
}

SmartPtr<Brush> VexaAreaObject::adjustBrush(SmartPtr<Brush> brush, ColorAspect aspect, float amount) {
    return PaintStyle::adjustBrush(brush, aspect, amount);
}

void VexaAreaObject::updateRenderContext(VexaRenderContext& context, ColorAspect aspect, float amount) {
    context.setFont(getFont(context));
    if (SmartPtr<Brush> fill = getFillBrush(aspect, amount)) context.setFill(std::move(fill));
    if (SmartPtr<Stroke> stroke = getStrokeBrush(aspect, amount)) context.setStroke(std::move(stroke));
}

}  // namespace VEXA
