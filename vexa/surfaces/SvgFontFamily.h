#pragma once

#include <string>
#include <string_view>

namespace VEXA {

/// Stands on the root of every document. Fonts of the same widths, so that a text takes the room that was laid out for
/// it.
inline constexpr std::string_view kSvgDefaultFamilies = "Liberation Sans, Arial, Helvetica, sans-serif";

/// A list of font families as a style sheet writes it, for the family (or comma-separated families) that a document
/// asks for: names that are more than plain words are quoted, the default families follow where no generic family ends
/// the list. Not escaped for XML. Of a very long request the first 1,000 characters count: it would stand on each of
/// many texts.
std::string svgFontFamilies(std::u32string_view requested);

}  // namespace VEXA
