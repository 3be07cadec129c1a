// Draws the first of some charts as DIRECTORY/chart.png, and all of them as pages of DIRECTORY/charts.pdf.
// usage: draw_pictures DIRECTORY CHART...
#include <cstdio>
#include <string>

#include "vexa/engine/VexaEngine.h"
#include "vexa/surfaces/cairo/CairoSurface.h"
using namespace VEXA;

SmartPtr<IO::Stream> open(const char* chart) { return make<IO::FileStream>(chart, IO::FileStream::Mode::Read); }

int main(int count, char** arguments) try {
    const std::string directory = arguments[1];

    const auto png = make<IO::MemoryStream>();
    PngOptions options;
    options.scale = 2;  // pixels to the px
    options.background = make<RGBColor>(255, 255, 255);
    VexaEngine::renderPage(open(arguments[2]), CairoSurface::png(png, options));
    IO::writeWholeFile(directory + "/chart.png", png->bytes());

    const auto pdf = make<IO::MemoryStream>();
    PdfOptions pages;
    pages.joinsDocuments = true;
    const auto surface = CairoSurface::pdf(pdf, pages);
    for (int i = 2; i < count; ++i) VexaEngine::renderPage(open(arguments[i]), surface);
    surface->finish();
    IO::writeWholeFile(directory + "/charts.pdf", pdf->bytes());
} catch (const Exception& error) {
    std::fprintf(stderr, "line %u: %s\n", error.getPlace().line, error.what());
    return 1;
}
