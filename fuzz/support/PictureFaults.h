#pragma once

#include <string>
#include <string_view>

namespace VEXA::Fuzz {

/// What is wrong with a display list, empty when nothing is: its lines and texts are whole, and every number is one,
/// those of paths included.
std::string displayListFault(std::string_view displayList);

/// What is wrong with an SVG document, empty when nothing is: it is well-formed, each id is there once, it runs no
/// script and refers to nothing but its own ids, and no attribute tells a number that is none.
std::string svgFault(std::string_view svg);

}  // namespace VEXA::Fuzz
