#pragma once

#include <optional>

#include "vexa/surfaces/cairo/CairoPages.h"
#include "vexa/surfaces/cairo/CairoSurface.h"
#include "vexa/surfaces/cairo/PixelWork.h"
#include "vexa/surfaces/cairo/RasterGlyphs.h"

namespace VEXA {

/// The one page of a PNG.
class PngPage final : public CairoPages {
public:
    explicit PngPage(PngOptions options) : options_(std::move(options)) {}

    void beginDocument() override;
    CairoCanvas beginPage(const SizeF& size) override;
    void endPage() override;
    void endDocument(const DocumentInfo& info, IO::Stream& stream) override;
    void finish(IO::Stream&) override {}

private:
    struct Pixels {
        int width;
        int height;
    };
    Pixels pixelsOf(const SizeF& size) const;

    PngOptions options_;
    Pixels size_{};
    CairoPtr<cairo_surface_t> image_;
    CairoPtr<cairo_t> context_;
    std::optional<RasterGlyphs> glyphs_;
    std::optional<PixelWork> work_;
};

}  // namespace VEXA
