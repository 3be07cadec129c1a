#pragma once

#include "vexa/check/ProblemList.h"
#include "vexa/engine/VexaRoot.h"

/// What attributes say wherever they stand.
namespace VEXA {

/// Before the tree is painted, which changes it: lengths below 0, opacities beyond 0 to 1, references that lead
/// nowhere, ids that are given twice.
void checkAttributes(VexaRoot& root, ProblemList& problems);

}  // namespace VEXA
