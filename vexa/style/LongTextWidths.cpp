#include "vexa/style/LongTextWidths.h"

#include <algorithm>

namespace VEXA {

int LongTextWidths::measure(const String& text, const SmartPtr<FontProgram>& program) {
    if (text.length() <= kLong) return program->measureString(text);
    const auto known = std::ranges::find_if(
        entries_, [&](const Entry& entry) { return entry.program == program && entry.text == text; });
    if (known != entries_.end()) return known->width;
    const int width = program->measureString(text);
    entries_[next_++ % entries_.size()] = {text, program, width};
    return width;
}

}  // namespace VEXA
