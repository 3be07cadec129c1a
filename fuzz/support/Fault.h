#pragma once

#include <string>
#include <string_view>

/// What the fuzz targets share: painting documents from memory, and what must hold for every picture.
namespace VEXA::Fuzz {

/// Ends the program, as a sanitizer would, unless the fault is empty.
void expectNoFault(std::string_view fault);
inline void expect(bool holds, std::string_view fault) { expectNoFault(holds ? std::string_view() : fault); }

}  // namespace VEXA::Fuzz
