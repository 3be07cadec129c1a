#pragma once

#include <string>
#include <string_view>

namespace VEXA {

/// Appends a JSON string in UTF-8, quotation marks included; control characters, `"` and `\` are escaped.
void appendJsonString(std::u32string_view text, std::string& out);

}  // namespace VEXA
