#pragma once

#include "vexa/surfaces/Paint.h"
#include "vexa/surfaces/cairo/DevicePath.h"

namespace VEXA {

/// The pixels that the shapes of a PNG lie over, each as often as it is painted. An addition throws Exception 35008
/// when they come to more than Limits::kPaintedPixels.
class PixelWork {
public:
    PixelWork(int width, int height) noexcept : width_(width), height_(height) {}

    /// An area or an outline, if there is paint for it; the box around it is in pixels and may reach beyond the page.
    void addShape(const PathBox& box, const Paint& paint);
    /// A text, by the box around it in user space.
    void addText(const PathBox& box, const cairo_matrix_t& matrix);

private:
    void add(const PathBox& box, double weight);

    double width_;
    double height_;
    double painted_ = 0;
};

}  // namespace VEXA
