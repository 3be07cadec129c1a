#include "vexa/spider/SpiderPointIndex.h"

#include <algorithm>
#include <tuple>

namespace VEXA {

SpiderPointIndex::SpiderPointIndex(const XmlObjectList<VexaSpiderDataPoint>& points) {
    entries_.reserve(points.size());
    for (const auto& point : points) {
        if (!point->hasAxisId()) {
            nameless_ = point.get();
            break;
        }
        entries_.push_back({point->getAxisId().view(), entries_.size(), point.get()});
    }
    std::sort(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
        return std::tie(a.axisId, a.position) < std::tie(b.axisId, b.position);
    });
}

VexaSpiderDataPoint* SpiderPointIndex::find(const String& axisId) const {
    const auto found = std::lower_bound(entries_.begin(), entries_.end(), axisId.view(),
                                        [](const Entry& entry, std::u32string_view id) { return entry.axisId < id; });
    if (found != entries_.end() && found->axisId == axisId.view()) return found->point;
    if (nameless_ != nullptr) static_cast<void>(nameless_->getAxisId());
    return nullptr;
}

}  // namespace VEXA
