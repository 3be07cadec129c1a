#include "vexa/cartesian/CloseBars.h"

#include <algorithm>
#include <bit>

namespace VEXA {

namespace {

/// Sums over runs of series, of which one is set anew at a time; nothing is ever subtracted, so nothing is left behind.
class SumTree {
public:
    explicit SumTree(std::size_t leaves) : leaves_(std::bit_ceil(leaves)), nodes_(2 * leaves_) {}

    void set(std::size_t leaf, const BarSums& sums) {
        std::size_t node = leaf + leaves_;
        for (nodes_[node] = sums; node > 1;) {
            node /= 2;
            nodes_[node] = nodes_[2 * node];
            nodes_[node] += nodes_[2 * node + 1];
        }
    }

    BarSums sum(std::size_t begin, std::size_t end) const {
        BarSums sums;
        for (begin += leaves_, end += leaves_; begin < end; begin /= 2, end /= 2) {
            if (begin % 2 == 1) sums += nodes_[begin++];
            if (end % 2 == 1) sums += nodes_[--end];
        }
        return sums;
    }

private:
    std::size_t leaves_;
    std::vector<BarSums> nodes_;
};

/// A window that slides along the category axis and knows, for each series in it, the first point in document order:
/// a queue of points in rising order whose head is the earliest.
class BarWindow {
public:
    BarWindow(std::span<const BarEntry> bars, const UnplacedSeries& series)
        : series_(series), present_(presentIn(bars)), queues_(present_.size()), places_(bars.size()), tree_(size()) {
        std::vector<std::size_t> counts(size() + 1);
        for (const BarEntry& bar : bars) ++counts[slotOf(bar) + 1];
        for (std::size_t slot = 0; slot < size(); ++slot) {
            counts[slot + 1] += counts[slot];
            queues_[slot] = {counts[slot], counts[slot]};
        }
    }

    void add(const BarEntry& bar) {
        Queue& queue = queues_[slotOf(bar)];
        while (queue.head < queue.end && places_[queue.end - 1]->point > bar.point) --queue.end;
        places_[queue.end++] = &bar;
        showHead(slotOf(bar));
    }
    void remove(const BarEntry& bar) {
        Queue& queue = queues_[slotOf(bar)];
        if (queue.head == queue.end || places_[queue.head] != &bar) return;
        ++queue.head;
        showHead(slotOf(bar));
    }
    BarNeighbours around(const BarEntry& bar) const {
        const std::size_t slot = slotOf(bar);
        return {tree_.sum(0, slot), tree_.sum(slot + 1, size())};
    }

private:
    struct Queue {
        std::size_t head = 0;
        std::size_t end = 0;
    };

    static std::vector<std::uint32_t> presentIn(std::span<const BarEntry> bars) {
        std::vector<std::uint32_t> present;
        present.reserve(bars.size());
        for (const BarEntry& bar : bars) present.push_back(bar.series);
        std::sort(present.begin(), present.end());
        present.erase(std::unique(present.begin(), present.end()), present.end());
        return present;
    }
    std::size_t size() const noexcept { return present_.size(); }
    std::size_t slotOf(const BarEntry& bar) const {
        const auto found = std::lower_bound(present_.begin(), present_.end(), bar.series);
        return static_cast<std::size_t>(found - present_.begin());
    }
    void showHead(std::size_t slot) {
        const Queue& queue = queues_[slot];
        if (queue.head == queue.end) return tree_.set(slot, {});
        const BarEntry& head = *places_[queue.head];
        tree_.set(slot, BarSums::of(series_[head.series][head.point]));
    }

    const UnplacedSeries& series_;
    std::vector<std::uint32_t> present_;  // the numbers of the series that have bars here, rising
    std::vector<Queue> queues_;           // for each of those, a part of `places_`
    std::vector<const BarEntry*> places_;
    SumTree tree_;
};

}  // namespace

BarSums BarSums::of(const UnplacedBar& bar) noexcept {
    const double length = static_cast<double>(bar.base) - bar.value;
    return {bar.width, 1, bar.value < bar.base ? length : 0, bar.value > bar.base ? length : 0};
}

BarSums& BarSums::operator+=(const BarSums& other) noexcept {
    width += other.width;
    count += other.count;
    above += other.above;
    below += other.below;
    return *this;
}

BarSums& BarSums::operator-=(const BarSums& other) noexcept {
    width -= other.width;
    count -= other.count;
    above -= other.above;
    below -= other.below;
    return *this;
}

std::vector<BarNeighbours> neighboursOfClose(std::span<const BarEntry> bars, const UnplacedSeries& series) {
    BarWindow window(bars, series);
    std::vector<BarNeighbours> neighbours;
    neighbours.reserve(bars.size());
    std::size_t first = 0;
    std::size_t next = 0;
    for (const BarEntry& bar : bars) {
        const double category = bar.category;
        for (; next < bars.size() && bars[next].category - category <= kSameCategory; ++next) window.add(bars[next]);
        for (; category - bars[first].category > kSameCategory; ++first) window.remove(bars[first]);
        neighbours.push_back(window.around(bar));
    }
    return neighbours;
}

}  // namespace VEXA
