#pragma once

#include "vexa/engine/VexaObject.h"

namespace VEXA {

/// The warning of an element that is read whole but not painted by this version. One for each element, however often
/// its tree is rendered.
class UnpaintedNotice {
public:
    void tell(const VexaObject& element);

private:
    bool told_ = false;
};

}  // namespace VEXA
