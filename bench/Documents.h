#pragma once

#include <string>

namespace VEXA::Bench {

/// The bytes of examples/NAME.xml. Ends the program with a message when it cannot be read.
std::string example(const std::string& name);

/// A radar chart with so many axes and series, a value on each.
std::string radarChart(int axes, int series);

/// A pie with so many slices, each with a caption, which the pie shows or not.
std::string pieChart(int slices, bool showsCaptions);

}  // namespace VEXA::Bench
