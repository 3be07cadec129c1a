#include "vexa/pie/BoxTree.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numeric>

namespace VEXA {

namespace {

constexpr std::size_t kMaxDepth = 64;

/// Where a box stands on one of the axes; what is no number stands at 0, so that any two places compare.
float middleOf(const RectF& box, bool isVertical) noexcept {
    const float middle = isVertical ? box.y + box.height / 2 : box.x + box.width / 2;
    return std::isnan(middle) ? 0 : middle;
}

}  // namespace

bool BoxTree::Bounds::intersects(const Bounds& other) const noexcept {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
}

void BoxTree::Bounds::include(const Bounds& other) noexcept {
    left = std::min(left, other.left);
    top = std::min(top, other.top);
    right = std::max(right, other.right);
    bottom = std::max(bottom, other.bottom);
}

BoxTree::Bounds BoxTree::boundsOf(const RectF& box) noexcept {
    return {box.x, box.y, box.x + box.width, box.y + box.height};
}

BoxTree::BoxTree(std::span<const RectF> boxes)
    : boxes_(boxes), leafCount_(std::bit_ceil(boxes.size())), nodes_(2 * leafCount_), leafOf_(boxes.size()) {
    Vector<std::uint32_t> order(boxes.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto depth = static_cast<std::uint32_t>(std::bit_width(leafCount_) - 1);
    for (std::uint32_t level = 0; level < depth; ++level) splitLevel(level, order);
    // Leaf k holds the one box, if any, that falls into its part of the order.
    for (std::size_t leaf = 0; leaf < leafCount_; ++leaf) {
        const std::size_t begin = boxes.size() * leaf / leafCount_;
        if (begin != boxes.size() * (leaf + 1) / leafCount_)
            leafOf_[order[begin]] = static_cast<std::uint32_t>(leafCount_ + leaf);
    }
}

// Divides each part of the order into a left and a right half, or an upper and a lower one on every other level.
void BoxTree::splitLevel(std::uint32_t level, Vector<std::uint32_t>& order) const {
    const std::size_t parts = std::size_t{1} << level;
    const auto at = [&](std::size_t part) {
        return order.begin() + static_cast<std::ptrdiff_t>(boxes_.size() * part / (2 * parts));
    };
    for (std::size_t part = 0; part < parts; ++part) {
        std::nth_element(at(2 * part), at(2 * part + 1), at(2 * part + 2), [&](std::uint32_t a, std::uint32_t b) {
            return middleOf(boxes_[a], level % 2 == 1) < middleOf(boxes_[b], level % 2 == 1);
        });
    }
}

bool BoxTree::intersects(std::size_t index) const {
    const Bounds box = boundsOf(boxes_[index]);
    std::array<std::size_t, kMaxDepth> open;
    std::size_t count = 0;
    open[count++] = 1;
    while (count > 0) {
        const std::size_t node = open[--count];
        if (!nodes_[node].intersects(box)) continue;
        if (node >= leafCount_) return true;
        open[count++] = 2 * node;
        open[count++] = 2 * node + 1;
    }
    return false;
}

void BoxTree::add(std::size_t index) {
    const Bounds box = boundsOf(boxes_[index]);
    for (std::size_t node = leafOf_[index]; node > 0; node /= 2) nodes_[node].include(box);
}

}  // namespace VEXA
