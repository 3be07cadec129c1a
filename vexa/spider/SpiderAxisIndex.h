#pragma once

#include <span>

#include "vexa/spider/VexaSpiderAxis.h"

namespace VEXA {

/// Finds the axes of a spider by their id in logarithmic time. Made once for a render.
class SpiderAxisIndex {
public:
    struct Entry {
        String id;
        std::size_t axis = 0;  ///< the position among the spider's axes, from 0
    };

    explicit SpiderAxisIndex(const XmlObjectList<VexaSpiderAxis>& axes);

    /// All axes with that id, in document order.
    std::span<const Entry> find(const String& id) const noexcept;
    /// The id nearest to one that no axis has; empty when none is near.
    String findNearest(const String& id) const;

private:
    Vector<Entry> entries_;  // by id, then by position
};

}  // namespace VEXA
