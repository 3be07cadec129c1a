#include "cli/FormatTable.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

namespace VEXA::Cli {
namespace {

SmartPtr<RenderContext> makePng(SmartPtr<IO::Stream> stream, const PictureOptions& options) {
    return CairoSurface::png(std::move(stream), {options.scale, options.dpi, options.background});
}

SmartPtr<RenderContext> makePdf(SmartPtr<IO::Stream> stream, const PictureOptions& options) {
    return CairoSurface::pdf(std::move(stream), {options.background, /*joinsDocuments*/ false});
}

JoinedPages joinPdf(SmartPtr<IO::Stream> stream, const PictureOptions& options) {
    const SmartPtr<CairoSurface> surface =
        CairoSurface::pdf(std::move(stream), {options.background, /*joinsDocuments*/ true});
    return {surface, [surface] { surface->finish(); }};
}

}  // namespace

FormatRow pngFormat() { return {OutputFormat::Png, "png", false, &makePng, nullptr}; }

FormatRow pdfFormat() { return {OutputFormat::Pdf, "pdf", true, &makePdf, &joinPdf}; }

}  // namespace VEXA::Cli
