#include <string>

#include "vexa/util/DateFormat.h"
#include "vexa/util/NumberFormat.h"
#include "vexa/util/Util.h"

namespace VEXA {

String Util::decimalFormat(float value, const String& spec) {
    std::u32string text;
    readNumberFormat(spec).append(value, text);
    return String(text);
}

String Util::dateFormat(const String& pattern, const DateTimeEx& date) {
    std::u32string text;
    appendDate(pattern, DateFields::of(date), text);
    return String(text);
}

}  // namespace VEXA
