#pragma once

#include <span>

#include "vexa/support/xml/Synonyms.h"

namespace VEXA {

/// What writers of charts, style sheets and other vector pictures call our elements and attributes.
std::span<const SynonymGroup> chartSynonyms() noexcept;

}  // namespace VEXA
