#include "vexa/engine/UnpaintedNotice.h"

#include "vexa/support/core/Log.h"

namespace VEXA {

void UnpaintedNotice::tell(const VexaObject& element) {
    if (told_) return;
    told_ = true;
    Log::warning(34010, {element.getTypeInfo()->getElementName()}, element.getPlace());
}

}  // namespace VEXA
