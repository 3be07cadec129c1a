#include "vexa/spider/SpiderAxisIndex.h"

#include <algorithm>
#include <string>

#include "vexa/support/core/Limits.h"
#include "vexa/support/core/NearestName.h"

namespace VEXA {

namespace {

struct ById {
    bool operator()(const SpiderAxisIndex::Entry& entry, const String& id) const noexcept { return entry.id < id; }
    bool operator()(const String& id, const SpiderAxisIndex::Entry& entry) const noexcept { return id < entry.id; }
};

}  // namespace

SpiderAxisIndex::SpiderAxisIndex(const XmlObjectList<VexaSpiderAxis>& axes) {
    entries_.reserve(axes.size());
    for (const auto& axis : axes) entries_.push_back({axis->getId(), entries_.size()});
    std::sort(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
        const int order = a.id.compare(b.id);
        return order < 0 || (order == 0 && a.axis < b.axis);
    });
}

std::span<const SpiderAxisIndex::Entry> SpiderAxisIndex::find(const String& id) const noexcept {
    const auto [first, last] = std::equal_range(entries_.begin(), entries_.end(), id, ById());
    return {first, last};
}

String SpiderAxisIndex::findNearest(const String& id) const {
    Vector<std::string> known;
    for (const Entry& entry : std::span(entries_).first(std::min(entries_.size(), Limits::kNearestNames)))
        known.push_back(entry.id.toUtf8());
    return String(nearestName(id.toUtf8(), Vector<std::string_view>(known.begin(), known.end())));
}

}  // namespace VEXA
