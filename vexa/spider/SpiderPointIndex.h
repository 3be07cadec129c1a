#pragma once

#include <string_view>

#include "vexa/spider/VexaSpiderDataPoint.h"

namespace VEXA {

/// Finds the data point of an axis as a search in document order does, in logarithmic time. Lives no longer than the
/// points.
class SpiderPointIndex {
public:
    explicit SpiderPointIndex(const XmlObjectList<VexaSpiderDataPoint>& points);

    /// The first point with that axis-id; null when there is none. Throws Exception 34000 when the search meets a point
    /// without axis-id first.
    VexaSpiderDataPoint* find(const String& axisId) const;

private:
    struct Entry {
        std::u32string_view axisId;
        std::size_t position;
        VexaSpiderDataPoint* point;
    };

    Vector<Entry> entries_;                    // by axis-id, then by position
    VexaSpiderDataPoint* nameless_ = nullptr;  // ends every search that has not found its point before
};

}  // namespace VEXA
