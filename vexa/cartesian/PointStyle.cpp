#include "vexa/cartesian/PointStyle.h"

#include "vexa/cartesian/VexaDataPoint.h"

namespace VEXA {

void PointStyle::use(VexaDataPoint& point) {
    if (point_ != nullptr && point.isStyledLike(*point_)) return;
    point_ = &point;
    scope_.reset();
    scope_.emplace(context_.getRenderContext());
    for (Slot* const slot : {&front_, &side_, &cylinder_, &caption_}) slot->reset();
    point.updateRenderContext(context_, ColorAspect::Normal, 0.5F);
}

const SmartPtr<Brush>& PointStyle::front() {
    if (!front_) front_ = point_->getFillBrush(ColorAspect::Normal, 0.5F);
    return *front_;
}

const SmartPtr<Brush>& PointStyle::side(float shading) {
    if (!side_) side_ = point_->getFillBrush(ColorAspect::Darker, shading);
    return *side_;
}

const SmartPtr<Brush>& PointStyle::cylinder(bool isUpright, float shading) {
    if (!cylinder_) {
        const auto orientation = isUpright ? AxisOrientation::Vertical : AxisOrientation::Horizontal;
        cylinder_ = point_->getCylinderFillBrush(orientation, shading);
    }
    return cylinder_->isEmpty() ? front() : *cylinder_;
}

const SmartPtr<Brush>& PointStyle::caption() {
    if (!caption_) caption_ = make<SolidColorBrush>(point_->getCaptionColor());
    return *caption_;
}

}  // namespace VEXA
