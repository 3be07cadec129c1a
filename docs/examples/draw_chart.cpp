#include <cstdio>
#include "vexa/engine/VexaEngine.h"
#include "vexa/surfaces/SvgSurface.h"
using namespace VEXA;

int main(int, char** argv) try {
    const auto chart = make<IO::FileStream>(argv[1], IO::FileStream::Mode::Read);
    const auto picture = make<IO::MemoryStream>();
    VexaEngine::renderPage(chart, make<SvgSurface>(picture));
    IO::writeWholeFile(argv[2], picture->bytes());
} catch (const Exception& error) {
    std::fprintf(stderr, "line %u: %s\n", error.getPlace().line, error.what());
    return 1;
}
