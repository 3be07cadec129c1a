#pragma once

#include <span>

#include "vexa/cartesian/BarGroups.h"

namespace VEXA {

/// One bar in the order along the category axis.
struct BarEntry {
    float category = 0;
    std::uint32_t series = 0;
    std::uint32_t point = 0;
};

/// What bars come to that stand at one category.
struct BarSums {
    double width = 0;
    double count = 0;
    double above = 0;  ///< lengths on either side of the base, with the sign that placing subtracts
    double below = 0;

    static BarSums of(const UnplacedBar& bar) noexcept;
    BarSums& operator+=(const BarSums& other) noexcept;
    BarSums& operator-=(const BarSums& other) noexcept;
};

/// The bars of the earlier and of the later series at a bar's category.
struct BarNeighbours {
    BarSums before;
    BarSums after;
};

/// The neighbours of each of some bars whose coordinates differ by less than anyone sees, so that each has neighbours
/// of its own: of every other series the first bar in document order within kSameCategory. `bars` are in the order of
/// their coordinates. Work grows as n log n.
std::vector<BarNeighbours> neighboursOfClose(std::span<const BarEntry> bars, const UnplacedSeries& series);

}  // namespace VEXA
