#pragma once

#include "vexa/engine/VexaRoot.h"
#include "vexa/support/drawing/RenderContext.h"

namespace VEXA {

/// What readers of a picture are told of a chart: its title, and a plain sentence for each body, "Radar chart of 3
/// series on 6 axes: Speed, Power, Range, …." Of bounded length, whatever the document holds.
DocumentInfo describeChart(const VexaRoot& root);

}  // namespace VEXA
