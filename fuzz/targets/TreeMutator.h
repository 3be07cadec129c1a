#pragma once

#include <cstddef>
#include <vector>

#include "fuzz/support/DocumentTree.h"

namespace VEXA::Fuzz {

/// One random change of a document's steps: a step or an element is added, dropped, copied or moved, or a value is
/// another one. Every change is settled by the seed.
std::vector<std::uint8_t> mutatedTree(Bytes tree, unsigned seed);

/// The first tree with an element or a few steps of the second one in it.
std::vector<std::uint8_t> crossedTree(Bytes tree, Bytes other, unsigned seed);

}  // namespace VEXA::Fuzz
