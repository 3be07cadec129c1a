#pragma once

#include <string>
#include <string_view>

namespace VEXA {

/// Appends text for XML 1.0 content or a quoted attribute value: markup is escaped, control characters become spaces,
/// and what XML does not allow becomes U+FFFD.
void appendXmlText(std::u32string_view text, std::string& out);

/// True when an XML application would drop spaces of the text: at its ends, or one after another. Control characters
/// count as the spaces that they are written as.
bool losesSpaces(std::u32string_view text) noexcept;

}  // namespace VEXA
