#pragma once

#include <string>

namespace VEXA::Bench {

/// Tokenises a document with handlers that do nothing: the floor of whatever reads it.
void expatAlone(const std::string& document);

}  // namespace VEXA::Bench
