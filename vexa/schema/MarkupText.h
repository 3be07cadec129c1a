#pragma once

#include <string>
#include <string_view>

namespace VEXA {

/// The text as it stands in XML, between tags or in an attribute.
std::string escapedMarkup(std::string_view text);

/// A text of Markdown on one line, without its marks: of a link only the words are left.
std::string withoutMarkdown(std::string_view text);

/// XML with a tag or an element a line, each line indented by the elements that are open.
std::string indentedMarkup(std::string_view lines);

}  // namespace VEXA
