#include "vexa/support/core/SmartPtr.h"

#include "vexa/support/core/Exception.h"

namespace VEXA {

void throwEmptySmartPtr() {
    constexpr int kLine = 118;  // the location that callers know this failure by; it does not move with the header
    raise(NullPointerException(), "SmartPtr", kLine);
}

}  // namespace VEXA
