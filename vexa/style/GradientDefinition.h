#pragma once

#include "vexa/style/ColorAspect.h"
#include "vexa/support/drawing/Brush.h"

namespace VEXA {

/// What styling asks of an object that defines a gradient, without knowing its class.
class GradientDefinition {
public:
    /// The gradient's brush, shared by all who ask: clone it before changing it. Empty when the definition takes its
    /// stops from one that is not there.
    virtual SmartPtr<Brush> getBrush(ColorAspect aspect, float amount) = 0;

protected:
    ~GradientDefinition() = default;
};

}  // namespace VEXA
