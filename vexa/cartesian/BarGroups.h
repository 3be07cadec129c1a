#pragma once

#include <cstdint>
#include <vector>

#include "vexa/support/values/Enumerations.h"

namespace VEXA {

/// A bar before it is placed among the bars of its category: coordinates along the two axes, in px.
struct UnplacedBar {
    float category = 0;
    float value = 0;
    float base = 0;
    float width = 0;
};

/// What placing does to a bar.
struct BarShift {
    float category = 0;  ///< where its centre comes to stand along the category axis
    float value = 0;     ///< to be subtracted from its value and its base coordinate
};

/// Bars of one chart, series by series, each in document order.
using UnplacedSeries = std::vector<std::vector<UnplacedBar>>;
using ShiftedSeries = std::vector<std::vector<BarShift>>;

/// Two coordinates that are no further apart belong to one category, px.
inline constexpr double kSameCategory = 0.00001;

/// Places the bars of each category side by side (`Clustered`, `spacing` px apart, the group centred) or on top of each
/// other (`Stacked`, positive and negative ones apart); with another grouping every bar stays.
///
/// The bars at a bar's category are, for each other series, the first in document order within kSameCategory of it, and
/// the bar itself. Work grows as n log n with all bars.
ShiftedSeries placeBars(const UnplacedSeries& series, SerieGrouping grouping, float spacing);

}  // namespace VEXA
