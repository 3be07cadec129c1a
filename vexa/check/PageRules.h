#pragma once

#include "vexa/check/ProblemList.h"
#include "vexa/engine/VexaRoot.h"

/// How the parts of a page lie on it.
namespace VEXA {

/// The root before it is painted: what it holds, ids that come twice, its size beside a view box.
void checkRoot(VexaRoot& root, ProblemList& problems);

/// A legend before it is painted, which moves it to its edge.
void checkLegend(const VexaLegend& legend, const VexaRenderContext& context, ProblemList& problems);

}  // namespace VEXA
