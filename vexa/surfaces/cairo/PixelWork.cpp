#include "vexa/surfaces/cairo/PixelWork.h"

#include <algorithm>
#include <limits>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

/// How much longer a pixel of a gradient or of a text takes than one of an area of one colour.
constexpr double kWeightOfMixing = 8;

}  // namespace

void PixelWork::addShape(const PathBox& box, const Paint& paint) {
    if (paint.paints()) add(box, paint.gradient == nullptr ? 1 : kWeightOfMixing);
}

void PixelWork::addText(const PathBox& box, const cairo_matrix_t& matrix) {
    constexpr double kFar = std::numeric_limits<double>::max();
    PathBox around{kFar, kFar, -kFar, -kFar};
    for (const double x : {box.left, box.right}) {
        for (const double y : {box.top, box.bottom}) {
            const DevicePoint corner = toDevice(matrix, {static_cast<float>(x), static_cast<float>(y)});
            around = {std::min(around.left, corner.x), std::min(around.top, corner.y), std::max(around.right, corner.x),
                      std::max(around.bottom, corner.y)};
        }
    }
    add(around, kWeightOfMixing);
}

void PixelWork::add(const PathBox& box, double weight) {
    const double width = std::min(box.right, width_) - std::max(box.left, 0.0);
    const double height = std::min(box.bottom, height_) - std::max(box.top, 0.0);
    if (width > 0 && height > 0) painted_ += width * height * weight;
    if (painted_ > Limits::kPaintedPixels) raise(Exception(35008, {width_, height_}), "CairoSurface", __LINE__);
}

}  // namespace VEXA
