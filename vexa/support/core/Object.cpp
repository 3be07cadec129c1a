#include "vexa/support/core/Object.h"

namespace VEXA {

void Object::OnFinalRelease() { delete this; }

}  // namespace VEXA
