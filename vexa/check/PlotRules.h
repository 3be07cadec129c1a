#pragma once

#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/check/ProblemList.h"

/// What becomes of the data of a plot area.
namespace VEXA {

/// Before the plot is painted, which takes out the data points that it cannot show: units of both axes, and texts that
/// were meant as dates or numbers. Cleans the data, so that its warnings are told also when the layout fails.
void checkPlotData(VexaPlotArea& plot, ProblemList& problems);

/// The plot as it was laid out: years that count as numbers, and bars that its edges cut.
void checkPlotLayout(VexaPlotArea& plot, VexaRenderContext& context, ProblemList& problems);

}  // namespace VEXA
