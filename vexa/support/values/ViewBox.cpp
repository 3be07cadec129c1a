#include "vexa/support/values/ViewBox.h"

#include "vexa/support/values/LengthText.h"

namespace VEXA {

bool ValueTraits<ViewBox>::parse(std::string_view text, ViewBox& out) {
    TextScanner scanner(text);
    scanner.skipSpace();
    for (SLengthOrPercent* const part : {&out.x, &out.y, &out.width, &out.height}) {
        LengthOrPercent value;
        if (part != &out.x && !scanner.skipNumberSeparator()) return false;
        if (!readLengthOrPercent(scanner, value)) return false;
        *part = SLengthOrPercent(value);
    }
    return scanner.isBlankToEnd();
}

std::string ValueTraits<ViewBox>::print(const ViewBox& value) {
    std::string result;
    for (const SLengthOrPercent* const part : {&value.x, &value.y, &value.width, &value.height}) {
        if (!result.empty()) result += ' ';
        appendLengthOrPercent(*part, result);
    }
    return result;
}

std::string_view ValueTraits<ViewBox>::expectation() noexcept {
    return "a view box (write x, y, width and height, such as 0 0 400 300)";
}
std::string_view ValueTraits<ViewBox>::name() noexcept { return "ViewBox"; }

}  // namespace VEXA
