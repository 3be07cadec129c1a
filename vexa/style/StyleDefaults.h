#pragma once

#include "vexa/support/values/Defaults.h"

/// Default values that several styled classes of the engine share.
namespace VEXA {

extern const DefaultAttribute<SLength> DefaultMiterLimit;  ///< 2

}  // namespace VEXA
