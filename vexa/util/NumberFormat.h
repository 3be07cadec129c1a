#pragma once

#include "vexa/support/core/Exception.h"
#include "vexa/support/xml/DecimalFormat.h"

namespace VEXA {

/// Reads what Util::decimalFormat takes, to write many numbers by it. Without `th:` all of it is the pattern. Blanks
/// around the pattern and around a separator do not count; a no-break space is not one of them.
DecimalFormat readNumberFormat(const String& spec);

/// Warns of what is not read as it looks: settings out of their order, and what is beyond the limits. `place` is that
/// of the element that has the format.
void checkNumberFormat(const String& spec, SourcePlace place);

}  // namespace VEXA
