#include "vexa/style/VexaElementObject.h"

namespace VEXA {

namespace {

constexpr StyleLocations kLocations{"VexaElementObject", 93, 153, 192, 208, 366, 380};

/// What a cylinder is painted with: a colour and the opacity it has.
struct MainColor {
    SmartPtr<Color> color;
    float opacity = 1;
};

/// A solid brush's colour, or the middle stop of a gradient (the later of the two middle ones).
MainColor mainColorOf(const Brush& brush) {
    switch (brush.getBrushType()) {
        case BrushType::SolidColor:
            return {static_cast<const SolidColorBrush&>(brush).getColor(), brush.getOpacity()};
        case BrushType::Gradient: {
            const Vector<StopPoint>& stops = static_cast<const GradientBrush&>(brush).getStops();
            if (stops.empty()) return {};
            const StopPoint& middle = stops[stops.size() / 2];
            return {middle.color, middle.opacity};
        }
    }
    return {};
}

SmartPtr<Brush> makeCylinder(const MainColor& main, AxisOrientation orientation, float amount) {
    const bool isVertical = orientation == AxisOrientation::Vertical;
    auto gradient = make<LinearGradientBrush>(0.0F, 0.0F, isVertical ? 1.0F : 0.0F, isVertical ? 0.0F : 1.0F,
                                              GradientUnits::ObjectBoundingBox, GradientSpreadMethod::Pad);
    const SmartPtr<Color> dark = Color::getDarker(main.color, amount);
    gradient->addStop(0.0F, dark, main.opacity);
    gradient->addStop(0.5F, main.color, main.opacity);
    gradient->addStop(0.7F, main.color, main.opacity);
    gradient->addStop(0.9F, dark, main.opacity);
    return gradient;
}

}  // namespace

VexaElementObject::VexaElementObjectTypeInfo::VexaElementObjectTypeInfo()
    : XmlTypeInfo("VexaElementObject", "", chartNamespace(), &initTypeInfo, 11) {}

void VexaElementObject::VexaElementObjectTypeInfo::initTypeInfo(XmlObjectTypeInfo* info) {
    VexaObjectTypeInfo::initTypeInfo(info);
    const XmlNamespace& space = chartNamespace();
    addAttributeTypeInfo(info, "fill", space, &VexaElementObject::fill_, DefaultSNullableFillColor, true);
    addAttributeTypeInfo(info, "fill-opacity", space, &VexaElementObject::fillOpacity_, DefaultFloatOrPercent, true);
    addAttributeTypeInfo(info, "stroke", space, &VexaElementObject::stroke_, DefaultSNullableStrokeColor, true);
    addAttributeTypeInfo(info, "stroke-opacity", space, &VexaElementObject::strokeOpacity_, DefaultFloatOrPercent,
                         true);
    addAttributeTypeInfo(info, "stroke-width", space, &VexaElementObject::strokeWidth_, DefaultStrokeWidth, true);
    addAttributeTypeInfo(info, "stroke-linecap", space, &VexaElementObject::lineCap_, DefaultSLineCap, true);
    addAttributeTypeInfo(info, "stroke-linejoin", space, &VexaElementObject::lineJoin_, DefaultSLineJoin, true);
    addAttributeTypeInfo(info, "stroke-miterlimit", space, &VexaElementObject::miterLimit_, DefaultMiterLimit, true);
    addAttributeTypeInfo(info, "stroke-dasharray", space, &VexaElementObject::dashArray_, DefaultSDashPattern, true);
    addAttributeTypeInfo(info, "stroke-dashoffset", space, &VexaElementObject::dashOffset_, DefaultLength, true);
    addAttributeTypeInfo(info, "opacity", space, &VexaElementObject::opacity_, DefaultFloatOrPercent, true);
    addAttributeTypeInfo(info, "font-family", space, &VexaElementObject::fontFamily_, DefaultFontFamily, true);
    addAttributeTypeInfo(info, "font-size", space, &VexaElementObject::fontSize_, DefaultChartFontSize, true);
    addAttributeTypeInfo(info, "font-weight", space, &VexaElementObject::fontWeight_, DefaultFontWeight, true);
    addAttributeTypeInfo(info, "font-style", space, &VexaElementObject::fontStyle_, DefaultFontStyle, true);
    addAttributeTypeInfo(info, "caption-color", space, &VexaElementObject::captionColor_, DefaultFillColor, true);
    addAttributeTypeInfo(info, "caption-offset", space, &VexaElementObject::captionOffset_, DefaultCaptionOffset, true);
}

XmlObjectTypeInfo* VexaElementObject::getTypeInfoInstance() {
    static Immortal<VexaElementObjectTypeInfo> info;
    return &info.value;
}

void VexaElementObject::setThemeFill(SmartPtr<Brush> fill) { themeFill_ = std::move(fill); }

void VexaElementObject::setThemeStroke(SmartPtr<Stroke> stroke) { themeStroke_ = std::move(stroke); }

SmartPtr<Brush> VexaElementObject::getUserFillBrush(ColorAspect aspect, float amount) {
    if (fill_->isNull()) return nullptr;
    return PaintStyle(*this, kLocations).makeFill(fill_->getSColor(), {fillOpacity_, opacity_}, aspect, amount);
}

SmartPtr<Stroke> VexaElementObject::getUserStrokeBrush(ColorAspect aspect, float amount) {
    if (stroke_->isNull()) return nullptr;
    return PaintStyle(*this, kLocations)
        .makeStroke(
            stroke_->getSColor(),
            {strokeWidth_, lineCap_, lineJoin_, miterLimit_, dashArray_, dashOffset_, {strokeOpacity_, opacity_}},
            aspect, amount);
}

SmartPtr<Brush> VexaElementObject::getFillBrush(ColorAspect aspect, float amount) {
    SmartPtr<Brush> brush = getUserFillBrush(aspect, amount);
    return brush.isEmpty() ? adjustBrush(themeFill_, aspect, amount) : brush;
}

SmartPtr<Stroke> VexaElementObject::getStrokeBrush(ColorAspect aspect, float amount) {
    if (!stroke_->isNull() || themeStroke_.isEmpty()) return getUserStrokeBrush(aspect, amount);
    if (*strokeWidth_ == SLength(1)) themeStroke_->setThickness(getStrokeWidth());
    return themeStroke_;
}

SmartPtr<Brush> VexaElementObject::getCylinderFillBrush(AxisOrientation orientation, float amount) {
    const SmartPtr<Brush> own = getUserFillBrush(ColorAspect::Normal, amount);
    const SmartPtr<Brush>& base = own.isEmpty() ? themeFill_ : own;
    if (base.isEmpty()) return nullptr;
    const MainColor main = mainColorOf(*base);
    if (main.color.isEmpty()) return nullptr;
    SmartPtr<Brush> cylinder = makeCylinder(main, orientation, amount);
    // A solid brush's opacity is in the stops already; a document's gradient carries fill-opacity as a whole.
    if (!own.isEmpty() && own->getBrushType() == BrushType::Gradient) cylinder->setOpacity(own->getOpacity());
    return cylinder;
}

SmartPtr<Font> VexaElementObject::getFont(VexaRenderContext& context) {
    return PaintStyle(*this, kLocations).makeFont({fontFamily_, fontSize_, fontStyle_, fontWeight_}, context);
}

void VexaElementObject::updateRenderContext(VexaRenderContext& context, ColorAspect aspect, float amount) {
    context.setFont(getFont(context));
    if (SmartPtr<Brush> fill = getFillBrush(aspect, amount)) context.setFill(std::move(fill));
    if (SmartPtr<Stroke> stroke = getStrokeBrush(aspect, amount)) context.setStroke(std::move(stroke));
}

SmartPtr<Brush> VexaElementObject::getGradientBrush(const String& reference, ColorAspect aspect, float amount) {
    return PaintStyle(*this, kLocations).makeGradient(reference, aspect, amount);
}

SmartPtr<Brush> VexaElementObject::adjustBrush(SmartPtr<Brush> brush, ColorAspect aspect, float amount) {
    return PaintStyle::adjustBrush(brush, aspect, amount);
}

}  // namespace VEXA
