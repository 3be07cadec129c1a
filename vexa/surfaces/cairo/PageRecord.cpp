#include "vexa/surfaces/cairo/PageRecord.h"

#include "vexa/support/core/Exception.h"

namespace VEXA {

void PageRecord::addShape(const Path& path, const Paint& paint) {
    if (!paint.paints()) return;
    add(1, path.points().size(), paint.gradient == nullptr ? 0 : paint.gradient->getStops().size());
}

void PageRecord::addPicture() {
    constexpr std::size_t kGroup = 4;  // its start, the picture, its end, and the group as a whole
    add(kGroup, 0, 0);
}

void PageRecord::add(std::size_t operations, std::size_t corners, std::size_t stops) {
    left_ -= kOperation * static_cast<double>(operations) + kCorner * static_cast<double>(corners) +
             kStop * static_cast<double>(stops);
    if (left_ < 0) raise(Exception(35007), "CairoSurface", __LINE__);
}

}  // namespace VEXA
