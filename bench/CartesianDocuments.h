#pragma once

#include <string>

namespace VEXA::Bench {

enum class CartesianKind { Line, TextLine, ClusteredBars, StackedBars };

/// A chart with so many points, a line or ten series of bars, with axes, labels and grid lines.
std::string cartesianChart(CartesianKind kind, int points);

/// Three series of clustered bars by twelve months, with axes, grid, title and legend.
std::string smallBarChart();

}  // namespace VEXA::Bench
