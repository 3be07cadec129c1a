#pragma once

#include <optional>

#include "vexa/style/VexaRenderContext.h"
#include "vexa/support/drawing/Brush.h"

namespace VEXA {

class VexaDataPoint;

/// What data points are painted with. Points in a row that take their style from the same places share it: it is made
/// for the first of them, and the surface's state is set once.
class PointStyle {
public:
    explicit PointStyle(VexaRenderContext& context) noexcept : context_(context) {}

    /// Makes the point's font, fill and stroke current, as in a scope of its own; the scope ends with the next other
    /// style or with this object. The point must outlive that.
    void use(VexaDataPoint& point);

    /// Of the point in use; each is made when it is first asked for. `shading` darkens, see Color::getDarker.
    const SmartPtr<Brush>& front();
    const SmartPtr<Brush>& side(float shading);
    /// For a cylinder that stands upright or lies. Where no cylinder brush can be made it is the front.
    const SmartPtr<Brush>& cylinder(bool isUpright, float shading);
    const SmartPtr<Brush>& caption();

private:
    using Slot = std::optional<SmartPtr<Brush>>;

    VexaRenderContext& context_;
    VexaDataPoint* point_ = nullptr;
    std::optional<RenderContextScope> scope_;
    Slot front_;
    Slot side_;
    Slot cylinder_;
    Slot caption_;
};

}  // namespace VEXA
