#include "vexa/style/StyleDefaults.h"

namespace VEXA {

constinit const DefaultAttribute<SLength> DefaultMiterLimit(SLength(2));

}  // namespace VEXA
