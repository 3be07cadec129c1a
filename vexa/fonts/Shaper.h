#pragma once

#include "vexa/fonts/FaceFinder.h"
#include "vexa/fonts/ShapedText.h"

namespace VEXA {

/// Lays a text out on one line with the faces of the stack, and others where those lack characters. Lengths come in
/// units of the first face. Control characters and line ends are spaces. Takes time in proportion to the text's length.
/// Throws Exception 1007 where a library is missing.
ShapedText shapeText(std::u32string_view text, const FontStack& stack, FaceFinder& finder);

/// What it comes to, without the runs.
ShapedText measureText(std::u32string_view text, const FontStack& stack, FaceFinder& finder);

}  // namespace VEXA
