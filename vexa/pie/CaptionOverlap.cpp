#include "vexa/pie/CaptionOverlap.h"

#include "vexa/pie/BoxTree.h"

namespace VEXA {

Vector<bool> boxesWithoutOverlap(std::span<const RectF> boxes) {
    Vector<bool> stays(boxes.size(), true);
    BoxTree tree(boxes);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const bool hasExtent = boxes[i].width > 0 && boxes[i].height > 0;
        if (!hasExtent) continue;
        stays[i] = !tree.intersects(i);
        if (stays[i]) tree.add(i);
    }
    return stays;
}

}  // namespace VEXA
