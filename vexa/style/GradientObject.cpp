#include "vexa/style/GradientObject.h"

#include "vexa/support/core/Log.h"
#include "vexa/util/Util.h"

namespace VEXA {

namespace {

constexpr int kReferenceNotFound = 34001;
constexpr int kOtherKind = 34003;

}  // namespace

SmartPtr<Brush> GradientObject::getBrush(ColorAspect aspect, float amount) {
    if (const auto& cached = brushOf(aspect)) return cached;
    normalBrush_ = makeBrush();
    darkerBrush_ = makeBrush();
    lighterBrush_ = makeBrush();
    const SmartPtr<GradientObject> source = findStopSource();
    if (source.isEmpty()) return nullptr;
    addStops(source->stops_, amount);
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
    Log::warning(found.isEmpty() ? kReferenceNotFound : kOtherKind, {*href_}, getPlace());
    return nullptr;
}

void GradientObject::addStops(const XmlObjectList<VexaGradientStop>& stops, float amount) {
    for (const XmlObjPtr<VexaGradientStop>& stop : stops) {
        const SmartPtr<Color> color = stop->getColor();
        normalBrush_->addStop(stop->getOffset(), color, stop->getOpacity());
        darkerBrush_->addStop(stop->getOffset(), Color::getDarker(color, amount), stop->getOpacity());
        lighterBrush_->addStop(stop->getOffset(), Color::getLighter(color, amount), stop->getOpacity());
    }
}

void GradientObject::addTransform() {
    Matrix matrix;
    Util::addTransformationList(matrix, *gradientTransform_);
    const auto& [a, b, c, d, e, f] = matrix.getElements();
    for (const SmartPtr<GradientBrush>& brush : {normalBrush_, darkerBrush_, lighterBrush_})
        brush->addMatrixTransform(a, b, c, d, e, f);
}

}  // namespace VEXA
