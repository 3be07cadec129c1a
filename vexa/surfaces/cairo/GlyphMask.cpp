#include "vexa/surfaces/cairo/GlyphMask.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace VEXA {

namespace {

constexpr long kUnit = 64;  // FreeType's coordinates are 26.6 numbers

/// Pixels of one picture of coverage; a text that runs across a large page is painted in several.
constexpr long kMostPixels = 1'000'000;
constexpr std::size_t kMostPoints = 100'000;

/// The pixels around an outline on the page, by the corners of its box.
PixelBox pixelsOf(const FT_Outline& outline, const cairo_matrix_t& matrix) {
    FT_BBox box;
    freeType().Outline_Get_CBox(&outline, &box);
    constexpr double kFar = std::numeric_limits<double>::max();
    PathBox around{kFar, kFar, -kFar, -kFar};
    for (const FT_Pos x : {box.xMin, box.xMax}) {
        for (const FT_Pos y : {box.yMin, box.yMax}) {
            const DevicePoint corner = toDevice(matrix, {static_cast<float>(x), static_cast<float>(y)});
            around = {std::min(around.left, corner.x), std::min(around.top, corner.y), std::max(around.right, corner.x),
                      std::max(around.bottom, corner.y)};
        }
    }
    const auto pixelBelow = [](double value) { return static_cast<long>(std::floor(value)); };
    return {pixelBelow(around.left), pixelBelow(around.top), pixelBelow(around.right) + 1,
            pixelBelow(around.bottom) + 1};
}

}  // namespace

PixelBox PixelBox::intersected(const PixelBox& other) const noexcept {
    return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom)};
}

PixelBox PixelBox::united(const PixelBox& other) const noexcept {
    if (isEmpty()) return other;
    return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
            std::max(bottom, other.bottom)};
}

bool GlyphMask::add(const FT_Outline& outline, const cairo_matrix_t& matrix) {
    const PixelBox shown = pixelsOf(outline, matrix).intersected(page_);
    if (shown.isEmpty()) return true;
    const PixelBox united = box_.united(shown);
    if (!outlines_.empty() && (united.area() > kMostPixels || points_.size() > kMostPoints)) return false;
    box_ = united;
    append(outline, matrix);
    return true;
}

void GlyphMask::append(const FT_Outline& outline, const cairo_matrix_t& m) {
    for (int i = 0; i < outline.n_points; ++i) {
        const auto x = static_cast<double>(outline.points[i].x);
        const auto y = static_cast<double>(outline.points[i].y);
        points_.push_back(
            {std::lround((m.xx * x + m.xy * y + m.x0) * kUnit), std::lround((m.yx * x + m.yy * y + m.y0) * -kUnit)});
    }
    tags_.insert(tags_.end(), outline.tags, outline.tags + outline.n_points);
    contours_.insert(contours_.end(), outline.contours, outline.contours + outline.n_contours);
    outlines_.push_back({outline.n_points, outline.n_contours});
}

void GlyphMask::paint(cairo_t* context) {
    if (outlines_.empty()) return;
    const auto width = static_cast<int>(box_.right - box_.left);
    const auto height = static_cast<int>(box_.bottom - box_.top);
    stride_ = (width + 3) / 4 * 4;  // cairo's rows of bytes start at multiples of 4
    coverage_.assign(static_cast<std::size_t>(stride_ * height), 0);
    drawAll();
    const CairoPtr<cairo_surface_t> mask(cairo().image_surface_create_for_data(coverage_.data(), CAIRO_FORMAT_A8, width,
                                                                               height, static_cast<int>(stride_)));
    cairo().mask_surface(context, mask.get(), static_cast<double>(box_.left), static_cast<double>(box_.top));
    clear();
}

void GlyphMask::drawAll() {
    FT_Raster_Params parameters{};
    parameters.flags = FT_RASTER_FLAG_AA | FT_RASTER_FLAG_DIRECT | FT_RASTER_FLAG_CLIP;
    parameters.gray_spans = addSpans;
    parameters.user = this;
    parameters.clip_box = {box_.left, -box_.bottom, box_.right, -box_.top};
    FT_Outline outline{};
    outline.points = points_.data();
    outline.tags = tags_.data();
    outline.contours = contours_.data();
    for (const Counts& counts : outlines_) {
        outline.n_points = counts.points;
        outline.n_contours = counts.contours;
        freeType().Outline_Render(freeType().handle, &outline, &parameters);
        outline.points += counts.points;
        outline.tags += counts.points;
        outline.contours += counts.contours;
    }
}

/// Letters that join, as in Arabic, share pixels, so coverage adds up.
void GlyphMask::addSpans(int y, int count, const FT_Span* spans, void* mask) {
    auto& self = *static_cast<GlyphMask*>(mask);
    const long row = (-1 - y - self.box_.top) * self.stride_;
    for (const FT_Span* span = spans; span != spans + count; ++span) {
        unsigned char* pixel = &self.coverage_[static_cast<std::size_t>(row + span->x - self.box_.left)];
        for (unsigned char* const end = pixel + span->len; pixel != end; ++pixel) {
            *pixel = static_cast<unsigned char>(std::min(*pixel + span->coverage, 255));
        }
    }
}

void GlyphMask::clear() noexcept {
    outlines_.clear();
    points_.clear();
    tags_.clear();
    contours_.clear();
    box_ = {};
}

}  // namespace VEXA
