#include "vexa/surfaces/cairo/PngPage.h"

#include <cmath>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Limits.h"
#include "vexa/surfaces/cairo/PngFile.h"

namespace VEXA {

namespace {

/// A page that is larger by less than this needs no further pixel: 560 px at a scale of 1.1, which no float is.
constexpr double kNegligible = 1e-3;

double pixelsAcross(float length, float scale) noexcept {
    return std::max(std::ceil(double{length} * scale - kNegligible), 1.0);
}

}  // namespace

void PngPage::beginDocument() {
    glyphs_.reset();
    context_.reset();
    image_.reset();
}

CairoCanvas PngPage::beginPage(const SizeF& size) {
    if (image_ != nullptr) {
        raise(UnreacheableCodeException("a PNG has one page; a second one was begun"), "CairoSurface", __LINE__);
    }
    size_ = pixelsOf(size);
    image_.reset(cairo().image_surface_create(CAIRO_FORMAT_ARGB32, size_.width, size_.height));
    requireSuccess(cairo().surface_status(image_.get()));
    context_.reset(cairo().create(image_.get()));
    glyphs_.emplace(size_.width, size_.height);
    work_.emplace(size_.width, size_.height);
    if (options_.background) paintBackground(context_.get(), *options_.background);
    return {context_.get(), options_.scale, &*glyphs_, nullptr, &*work_};
}

void PngPage::endPage() { context_.reset(); }

void PngPage::endDocument(const DocumentInfo&, IO::Stream& stream) {
    if (image_ == nullptr) {
        raise(UnreacheableCodeException("a PNG needs a page; none was begun"), "CairoSurface", __LINE__);
    }
    cairo().surface_flush(image_.get());
    const auto stride = cairo().image_surface_get_stride(image_.get()) / std::ptrdiff_t{sizeof(std::uint32_t)};
    const auto* pixels = reinterpret_cast<const std::uint32_t*>(cairo().image_surface_get_data(image_.get()));
    stream.write(encodePng({pixels, size_.width, size_.height, stride}, options_.dpi));
    stream.flush();
    beginDocument();
}

PngPage::Pixels PngPage::pixelsOf(const SizeF& size) const {
    if (!(options_.scale > 0) || !std::isfinite(options_.scale)) {
        raise(Exception(35001, {double{options_.scale}}), "CairoSurface", __LINE__);
    }
    requireExtent(size);
    const double width = pixelsAcross(size.width, options_.scale);
    const double height = pixelsAcross(size.height, options_.scale);
    const bool fits = width <= Limits::kRasterSide && height <= Limits::kRasterSide &&
                      width * height * sizeof(std::uint32_t) <= Limits::kRasterBytes;
    if (!fits) raise(Exception(35002, {width, height, std::int64_t{Limits::kRasterSide}}), "CairoSurface", __LINE__);
    return {static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace VEXA
