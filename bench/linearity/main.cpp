// Renders documents that grow, for a tool that counts instructions.
// usage: vexa_linearity            names and sizes of the dimensions, "SIZE NAME"
//        vexa_linearity NAME SIZE  renders one document; count what happens in renderCounted()
//        vexa_linearity NAME SIZE --print

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

#include "bench/linearity/GrowingDocuments.h"
#include "vexa/engine/VexaEngine.h"
#include "vexa/support/core/Log.h"
#include "vexa/surfaces/SvgSurface.h"

/// Reads the document, draws it and frees it.
extern "C" [[gnu::noinline]] void renderCounted(const std::string& document) {
    using namespace VEXA;
    const auto out = make<IO::MemoryStream>();
    VexaEngine::renderPage(make<IO::ViewStream>(document), make<SvgSurface>(out));
}

namespace {

using namespace VEXA;

struct SilentSink final : LogSink {
    void write(const LogRecord&) override {}
};

int list() {
    for (const Bench::Dimension& dimension : Bench::dimensions())
        std::printf("%d %s\n", dimension.size, dimension.name);
    return 0;
}

int render(std::string_view name, int size, bool prints) {
    const auto all = Bench::dimensions();
    const auto found = std::ranges::find_if(all, [&](const auto& dimension) { return dimension.name == name; });
    if (found == all.end() || size < 1) return 2;
    const std::string document = found->document(size);
    if (prints) {
        std::puts(document.c_str());
        return 0;
    }
    Log::setSink(std::make_shared<SilentSink>());
    renderCounted(document);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return list();
    try {
        return render(argv[1], std::atoi(argv[2]), argc > 3);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[1], error.what());
        return 1;
    }
}
