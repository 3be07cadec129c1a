#include "vexa/style/GradientObject.h"

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/Log.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr int kOtherKind = 34003;
constexpr int kTooManyStops = 34004;
constexpr int kNoStops = 34132;

}  // namespace

SmartPtr<Brush> GradientObject::getBrush(ColorAspect aspect, float amount) {
    if (const auto& cached = brushOf(aspect)) return cached;
    normalBrush_ = makeBrush();
    darkerBrush_ = makeBrush();
    lighterBrush_ = makeBrush();
    const SmartPtr<GradientObject> source = findStopSource();
    if (source.isEmpty()) return nullptr;
    if (source->stops_.isEmpty()) Log::warning(kNoStops, {quoteForMessage(source->getId())}, getPlace());
    const ShadedStops& stops = source->shadeStops(amount);
    normalBrush_->shareStops(stops.normal);
    darkerBrush_->shareStops(stops.darker);
    lighterBrush_->shareStops(stops.lighter);
    addTransform();
    return brushOf(aspect);
}

void GradientObject::render(VexaRenderContext&) {}

SmartPtr<GradientBrush>& GradientObject::brushOf(ColorAspect aspect) noexcept {
    switch (aspect) {
        case ColorAspect::Normal:
            return normalBrush_;
        case ColorAspect::Darker:
            return darkerBrush_;
        case ColorAspect::Lighter:
            break;
    }
    return lighterBrush_;
}

SmartPtr<GradientObject> GradientObject::findStopSource() {
    if (href_ == DefaultStringAttribute) return this;
    const XmlObjPtr<VexaObject> found = findReferencedObject(*href_);
    if (!found.isEmpty() && found->isKindOf(getTypeInfo()->typeID())) return static_cast<GradientObject*>(found.get());
    if (found.isEmpty()) {
        tellNotFound(*href_);
    } else {
        Log::warning(kOtherKind, {quoteForMessage(*href_)}, getPlace());
    }
    return nullptr;
}

const GradientObject::ShadedStops& GradientObject::shadeStops(float amount) {
    if (!shadedStops_.normal.isEmpty() && shadedStops_.amount == amount) return shadedStops_;
    shadedStops_ = {amount, make<StopList>(), make<StopList>(), make<StopList>()};
    for (const XmlObjPtr<VexaGradientStop>& stop : stops_) {
        if (shadedStops_.normal->points.size() == Limits::kGradientStops) {
            Log::warning(kTooManyStops, {static_cast<std::int64_t>(Limits::kGradientStops)}, getPlace());
            break;
        }
        const SmartPtr<Color> color = stop->getColor();
        const float offset = stop->getOffset();
        const float opacity = stop->getOpacity();
        shadedStops_.normal->points.push_back({offset, color, opacity});
        shadedStops_.darker->points.push_back({offset, Color::getDarker(color, amount), opacity});
        shadedStops_.lighter->points.push_back({offset, Color::getLighter(color, amount), opacity});
    }
    return shadedStops_;
}

void GradientObject::addTransform() {
    Matrix matrix;
    Util::addTransformationList(matrix, *gradientTransform_);
    const auto& [a, b, c, d, e, f] = matrix.getElements();
    for (const SmartPtr<GradientBrush>& brush : {normalBrush_, darkerBrush_, lighterBrush_})
        brush->addMatrixTransform(a, b, c, d, e, f);
}

}  // namespace VEXA
