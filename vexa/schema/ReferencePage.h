#pragma once

#include <string>

namespace VEXA {

/// The reference of chart documents in Markdown (GitHub's flavour), made from the registered classes: every element
/// with its children and attributes, and the types of their values; UTF-8.
std::string makeReferencePage();

}  // namespace VEXA
