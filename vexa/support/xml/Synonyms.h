#pragma once

#include <span>
#include <string_view>

#include "vexa/support/core/Vector.h"

namespace VEXA {

/// Words for the same thing, separated by single blanks: names of the vocabulary and what people write who know other
/// ones. `constinit`, or alive as long as the program.
using SynonymGroup = std::string_view;

/// What `word` most likely stands for among the `known` names: from each group that has the word, its first known name.
Vector<std::string_view> synonymsOf(std::string_view word, std::span<const SynonymGroup> groups,
                                    std::span<const std::string_view> known);

}  // namespace VEXA
