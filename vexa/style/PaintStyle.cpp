#include "vexa/style/PaintStyle.h"

#include <algorithm>
#include <string>

#include "vexa/style/GradientDefinition.h"
#include "vexa/style/VexaRenderContext.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA {

namespace {

constexpr int kNoGradient = 34002;
constexpr int kTooManyDashes = 34005;

/// The opacity that counts; null when neither says anything.
const FloatOrPercent* findOpacity(const OpacityAttributes& opacity) {
    if (opacity.own != DefaultFloatOrPercent) return &*opacity.own;
    if (opacity.overall != DefaultFloatOrPercent) return &*opacity.overall;
    return nullptr;
}

Vector<float> pxSizes(std::span<const SLength> lengths) {
    Vector<float> sizes(lengths.size());
    std::transform(lengths.begin(), lengths.end(), sizes.begin(),
                   [](const SLength& length) { return length.pxSize(); });
    return sizes;
}

SmartPtr<Brush> adjustGradient(const Brush& brush, ColorAspect aspect, float amount) {
    SmartPtr<Brush> copy = brush.clone();
    auto& gradient = static_cast<GradientBrush&>(*copy);
    Vector<StopPoint> stops = gradient.getStops();
    for (StopPoint& stop : stops) stop.color = PaintStyle::adjustColor(stop.color, aspect, amount);
    gradient.setStops(std::move(stops));
    return copy;
}

}  // namespace

SmartPtr<Brush> PaintStyle::makeFill(const SColor& paint, const OpacityAttributes& opacity, ColorAspect aspect,
                                     float amount) const {
    if (!isPainted(paint, "fill colour type", locations_.fillType)) return nullptr;
    SmartPtr<Brush> brush = makeBrush(paint, aspect, amount);
    const FloatOrPercent* const given = findOpacity(opacity);
    if (brush.isEmpty() || given == nullptr) return brush;
    if (paint.getType() == SColorType::Url) brush = brush->clone();  // a definition's brush is shared
    brush->setOpacity(given->getValue());
    return brush;
}

SmartPtr<Stroke> PaintStyle::makeStroke(const SColor& paint, const StrokeAttributes& attributes, ColorAspect aspect,
                                        float amount) const {
    if (!isPainted(paint, "stroke colour type", locations_.strokeType)) return nullptr;
    auto stroke = make<Stroke>(makeBrush(paint, aspect, amount), attributes.width->pxSize());
    if (const FloatOrPercent* const given = findOpacity(attributes.opacity)) stroke->setOpacity(given->getValue());
    if (attributes.dashArray != DefaultSDashPattern) {
        stroke->setDashArray(dashSizes(*attributes.dashArray));
        stroke->setDashOffset(attributes.dashOffset->pxSize());
    }
    const LineCap cap = mapLineCap(*attributes.lineCap);
    stroke->setStartLineCap(cap);
    stroke->setEndLineCap(cap);
    stroke->setLineJoin(mapLineJoin(*attributes.lineJoin));
    stroke->setMiterLimit(attributes.miterLimit->pxSize());
    return stroke;
}

Vector<float> PaintStyle::dashSizes(std::span<const SLength> lengths) const {
    if (lengths.size() > Limits::kDashEntries) {
        Log::warning(kTooManyDashes, {static_cast<std::int64_t>(Limits::kDashEntries)}, owner_.getPlace());
        lengths = lengths.first(Limits::kDashEntries);
    }
    return pxSizes(lengths);
}

SmartPtr<Font> PaintStyle::makeFont(const FontAttributes& attributes, const VexaRenderContext& context) const {
    auto font = make<Font>();
    font->setFontFamily(*attributes.family);
    const float size = context.pxDiagonal(*attributes.size);
    font->setFontSize(size > 0 ? std::min(size, Limits::kFontSize) : 0.0F);  // NaN is 0 too
    font->setFontStyle(mapFontStyle(*attributes.style));
    font->setFontWeight(mapFontWeight(*attributes.weight));
    return font;
}

SmartPtr<Brush> PaintStyle::makeGradient(const String& reference, ColorAspect aspect, float amount) const {
    const XmlObjPtr<VexaObject> object = owner_.findReferencedObject(reference);
    if (object.isEmpty()) {
        owner_.tellNotFound(reference);
        return nullptr;
    }
    if (auto* const gradient = dynamic_cast<GradientDefinition*>(object.get()))
        return gradient->getBrush(aspect, amount);
    Log::warning(kNoGradient, {quoteForMessage(object->getId())}, owner_.getPlace());
    return nullptr;
}

SmartPtr<Brush> PaintStyle::adjustBrush(const SmartPtr<Brush>& brush, ColorAspect aspect, float amount) {
    if (brush.isEmpty()) return nullptr;
    if (aspect == ColorAspect::Normal) return brush->clone();
    switch (brush->getBrushType()) {
        case BrushType::SolidColor:
            return make<SolidColorBrush>(
                adjustColor(static_cast<const SolidColorBrush&>(*brush).getColor(), aspect, amount));
        case BrushType::Gradient:
            return adjustGradient(*brush, aspect, amount);
    }
    return brush->clone();
}

SmartPtr<Color> PaintStyle::adjustColor(const SmartPtr<Color>& color, ColorAspect aspect, float amount) {
    switch (aspect) {
        case ColorAspect::Lighter:
            return Color::getLighter(color, amount);
        case ColorAspect::Darker:
            return Color::getDarker(color, amount);
        case ColorAspect::Normal:
            break;
    }
    return color;
}

bool PaintStyle::isPainted(const SColor& paint, const char* what, int line) const {
    switch (paint.getType()) {
        case SColorType::None:
            return false;
        case SColorType::Url:
        case SColorType::Color:
            return true;
    }
    refuse(what, static_cast<std::int32_t>(paint.getType()), line);
}

SmartPtr<Brush> PaintStyle::makeBrush(const SColor& paint, ColorAspect aspect, float amount) const {
    if (paint.getType() == SColorType::Url) return makeGradient(paint.getUrl(), aspect, amount);
    return make<SolidColorBrush>(adjustColor(paint.getColor(), aspect, amount));
}

LineCap PaintStyle::mapLineCap(SLineCap cap) const {
    switch (cap) {
        case SLineCap::Butt:
            return LineCap::Butt;
        case SLineCap::Round:
            return LineCap::Round;
        case SLineCap::Square:
            return LineCap::Square;
    }
    refuse("line cap", static_cast<std::int32_t>(cap), locations_.lineCap);
}

LineJoin PaintStyle::mapLineJoin(SLineJoin join) const {
    switch (join) {
        case SLineJoin::Miter:
            return LineJoin::Miter;
        case SLineJoin::Round:
            return LineJoin::Round;
        case SLineJoin::Bevel:
            return LineJoin::Bevel;
    }
    refuse("line join", static_cast<std::int32_t>(join), locations_.lineJoin);
}

DrawingFontStyle PaintStyle::mapFontStyle(FontStyle style) const {
    switch (style) {
        case FontStyle::Italic:
            return DrawingFontStyle::Italic;
        case FontStyle::Normal:
        case FontStyle::Oblique:
        case FontStyle::Backslant:
            return DrawingFontStyle::Normal;
    }
    refuse("font style", static_cast<std::int32_t>(style), locations_.fontStyle);
}

DrawingFontWeight PaintStyle::mapFontWeight(FontWeight weight) const {
    switch (weight) {
        case FontWeight::Normal:
            return DrawingFontWeight::Normal;
        case FontWeight::Bold:
            return DrawingFontWeight::Bold;
    }
    refuse("font weight", static_cast<std::int32_t>(weight), locations_.fontWeight);
}

void PaintStyle::refuse(const char* what, std::int32_t ordinal, int line) const {
    raise(UnreacheableCodeException(String(std::string(what) + ' ' + std::to_string(ordinal) + " is unknown")),
          locations_.source, line, owner_.getPlace());
}

}  // namespace VEXA
