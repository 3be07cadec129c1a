#include <benchmark/benchmark.h>

#include "bench/Documents.h"
#include "vexa/engine/VexaEngine.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

// From the document to the bytes of the picture, in a process that has drawn before.

namespace VEXA::Bench {
namespace {

template <class MakeSurface>
void run(benchmark::State& state, const char* name, MakeSurface makeSurface) {
    const std::string document = example(name);
    std::size_t size = 0;
    for (auto _ : state) {
        const auto out = make<IO::MemoryStream>();
        VexaEngine::renderPage(make<IO::ViewStream>(document), makeSurface(out));
        size = out->bytes().size();
    }
    state.counters["bytes"] = static_cast<double>(size);
}

void drawPng(benchmark::State& state, const char* name, float scale) {
    run(state, name, [scale](const auto& out) { return CairoSurface::png(out, {scale, 0, {}}); });
}

void drawPdf(benchmark::State& state, const char* name) {
    run(state, name, [](const auto& out) { return CairoSurface::pdf(out); });
}

BENCHMARK_CAPTURE(drawPng, small chart, "coffee-tasting", 1.0F);
BENCHMARK_CAPTURE(drawPng, small chart twice as large, "coffee-tasting", 2.0F);
BENCHMARK_CAPTURE(drawPng, many lines, "phone-comparison", 1.0F);
BENCHMARK_CAPTURE(drawPng, gradient, "sea-temperature", 1.0F);
BENCHMARK_CAPTURE(drawPng, gradient twice as large, "sea-temperature", 2.0F);
BENCHMARK_CAPTURE(drawPng, many scripts, "hotel-reviews", 1.0F);
BENCHMARK_CAPTURE(drawPdf, small chart, "coffee-tasting");
BENCHMARK_CAPTURE(drawPdf, many lines, "phone-comparison");
BENCHMARK_CAPTURE(drawPdf, many scripts, "hotel-reviews");

}  // namespace
}  // namespace VEXA::Bench
