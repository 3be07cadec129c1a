#include "vexa/cartesian/BarGroups.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "vexa/cartesian/CloseBars.h"

namespace VEXA {

namespace {

class BarPlacer {
public:
    BarPlacer(const UnplacedSeries& series, SerieGrouping grouping, float spacing)
        : series_(series), grouping_(grouping), spacing_(spacing) {}

    ShiftedSeries place() {
        leaveAll();
        const bool isPlaced = grouping_ == SerieGrouping::Clustered || grouping_ == SerieGrouping::Stacked;
        if (isPlaced && series_.size() > 1) placeAll();
        return std::move(shifts_);
    }

private:
    const UnplacedBar& barOf(const BarEntry& entry) const { return series_[entry.series][entry.point]; }

    void placeAll() {
        sortEntries();
        for (std::size_t begin = 0; begin < entries_.size();) {
            const std::size_t end = endOfCategory(begin);
            const std::span<const BarEntry> category(entries_.data() + begin, end - begin);
            if (category.front().category == category.back().category) {
                placeEqual(category);
            } else {
                placeClose(category);
            }
            begin = end;
        }
    }

    void leaveAll() {
        shifts_.reserve(series_.size());
        for (const auto& bars : series_) {
            auto& shifts = shifts_.emplace_back(bars.size());
            std::transform(bars.begin(), bars.end(), shifts.begin(), [](const UnplacedBar& bar) {
                return BarShift{bar.category, 0};
            });
        }
    }

    void sortEntries() {
        std::size_t count = 0;
        for (const auto& bars : series_) count += bars.size();
        entries_.reserve(count);
        for (std::uint32_t series = 0; series < series_.size(); ++series) {
            for (std::uint32_t point = 0; point < series_[series].size(); ++point) {
                const float category = series_[series][point].category;
                if (std::isfinite(category)) entries_.push_back({category, series, point});
            }
        }
        std::sort(entries_.begin(), entries_.end(), [](const BarEntry& a, const BarEntry& b) {
            if (a.category != b.category) return a.category < b.category;
            return a.series != b.series ? a.series < b.series : a.point < b.point;
        });
    }

    /// Bars up to there hang together: each is close to the one before.
    std::size_t endOfCategory(std::size_t begin) const {
        const auto isFar = [](const BarEntry& a, const BarEntry& b) {
            return static_cast<double>(b.category) - a.category > kSameCategory;
        };
        const auto found =
            std::adjacent_find(entries_.begin() + static_cast<std::ptrdiff_t>(begin), entries_.end(), isFar);
        return found == entries_.end() ? entries_.size() : static_cast<std::size_t>(found - entries_.begin()) + 1;
    }

    /// All coordinates are equal, so the first bar of each series is the same for all: running sums serve every bar.
    void placeEqual(std::span<const BarEntry> category) {
        BarNeighbours sums;
        for (std::size_t i = 0; i < category.size(); ++i) {
            if (i == 0 || category[i - 1].series != category[i].series) sums.after += BarSums::of(barOf(category[i]));
        }
        for (std::size_t i = 0; i < category.size();) {
            const BarEntry& first = category[i];
            sums.after -= BarSums::of(barOf(first));
            for (; i < category.size() && category[i].series == first.series; ++i) shift(category[i], sums);
            sums.before += BarSums::of(barOf(first));
        }
    }

    void placeClose(std::span<const BarEntry> category) {
        const std::vector<BarNeighbours> neighbours = neighboursOfClose(category, series_);
        for (std::size_t i = 0; i < category.size(); ++i) shift(category[i], neighbours[i]);
    }

    void shift(const BarEntry& entry, const BarNeighbours& neighbours) {
        BarShift& shift = shifts_[entry.series][entry.point];
        const UnplacedBar& bar = barOf(entry);
        const auto& [before, after] = neighbours;
        if (grouping_ == SerieGrouping::Clustered) {
            const double total = before.width + bar.width + after.width + spacing_ * (before.count + after.count);
            const double inFront = before.width + spacing_ * before.count;
            shift.category = static_cast<float>(bar.category - total / 2 + inFront + bar.width / 2.0);
        } else if (bar.value != bar.base) {
            shift.value = static_cast<float>(bar.value < bar.base ? before.above : before.below);
        }
    }

    const UnplacedSeries& series_;
    SerieGrouping grouping_;
    float spacing_;
    std::vector<BarEntry> entries_;
    ShiftedSeries shifts_;
};

}  // namespace

ShiftedSeries placeBars(const UnplacedSeries& series, SerieGrouping grouping, float spacing) {
    return BarPlacer(series, grouping, spacing).place();
}

}  // namespace VEXA
