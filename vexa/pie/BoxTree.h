#pragma once

#include <cstdint>
#include <limits>
#include <span>

#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Geometry.h"

namespace VEXA {

/// Tells whether a box intersects one of those added before. All boxes are known from the start, so that they stand in
/// a balanced tree by their place: a k-d tree whose nodes know the extent of what was added below them (J. L. Bentley,
/// "Multidimensional binary search trees used for associative searching", 1975). Unlike the cells of a grid it stays
/// quick when the boxes differ a thousandfold in size or crowd in one corner.
class BoxTree {
public:
    /// Empty, with room for these boxes. They must outlive the tree.
    explicit BoxTree(std::span<const RectF> boxes);

    /// Whether box `index` has an area in common with a box in the tree.
    bool intersects(std::size_t index) const;
    void add(std::size_t index);

private:
    struct Bounds {
        float left = std::numeric_limits<float>::infinity();
        float top = std::numeric_limits<float>::infinity();
        float right = -std::numeric_limits<float>::infinity();
        float bottom = -std::numeric_limits<float>::infinity();

        bool intersects(const Bounds& other) const noexcept;
        void include(const Bounds& other) noexcept;
    };
    static Bounds boundsOf(const RectF& box) noexcept;
    void splitLevel(std::uint32_t level, Vector<std::uint32_t>& order) const;

    std::span<const RectF> boxes_;
    std::size_t leafCount_;
    Vector<Bounds> nodes_;  // the children of node i are 2i and 2i + 1, the root is 1
    Vector<std::uint32_t> leafOf_;
};

}  // namespace VEXA
