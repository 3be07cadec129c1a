#pragma once

#include <string>

#include "vexa/support/core/Exception.h"
#include "vexa/util/DateFields.h"

namespace VEXA {

/// Writes a date by a pattern of Util::dateFormat behind what `out` has. A field that the date lacks writes nothing.
void appendDate(const String& pattern, const DateFields& date, std::u32string& out);

/// Warns of a letter that means nothing and is left out, of a pattern that shows nothing of a date, and of one beyond
/// the limit. `place` is that of the element that has the pattern.
void checkDateFormat(const String& pattern, SourcePlace place);

}  // namespace VEXA
