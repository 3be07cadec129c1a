#include <benchmark/benchmark.h>

#include "bench/CartesianDocuments.h"
#include "bench/Documents.h"
#include "bench/ExpatAlone.h"
#include "vexa/engine/VexaEngine.h"
#include "vexa/surfaces/DisplayListSurface.h"
#include "vexa/surfaces/NullSurface.h"
#include "vexa/surfaces/SvgSurface.h"

// Every figure stands beside its floor: expat alone on the same bytes, with handlers that do nothing.

namespace VEXA::Bench {
namespace {

SmartPtr<IO::Stream> streamOver(const std::string& document) { return make<IO::ViewStream>(document); }

template <class Work>
void run(benchmark::State& state, const std::string& document, Work work) {
    for (auto _ : state) work(document);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(document.size()));
}

void load(const std::string& document) { benchmark::DoNotOptimize(VexaEngine::loadStream(streamOver(document))); }
void paintNull(const std::string& document) { VexaEngine::renderPage(streamOver(document), make<NullSurface>()); }

template <class Surface>
void paintTo(const std::string& document) {
    const auto out = make<IO::MemoryStream>();
    VexaEngine::renderPage(streamOver(document), make<Surface>(out));
    benchmark::DoNotOptimize(out->bytes().data());
}

void registerDocument(const std::string& name, const std::string& document) {
    const auto add = [&](const char* what, void (*work)(const std::string&)) {
        benchmark::RegisterBenchmark((name + "/" + what).c_str(),
                                     [document, work](benchmark::State& state) { run(state, document, work); });
    };
    add("expat alone", &expatAlone);
    add("load", &load);
    add("load and paint, null surface", &paintNull);
    add("load and paint, SVG", &paintTo<SvgSurface>);
    add("load and paint, display list", &paintTo<DisplayListSurface>);
}

}  // namespace

void registerRenderBenchmarks() {
    registerDocument("small chart", example("coffee-tasting"));
    registerDocument("two gradients, 8 axes", example("team-skills"));
    registerDocument("clustered bars 3 x 12", smallBarChart());
    registerDocument("radar 12 x 100", radarChart(12, 100));
    registerDocument("radar 1000 x 10", radarChart(1000, 10));
    registerDocument("radar 2000 x 10", radarChart(2000, 10));
    registerDocument("pie of 6", pieChart(6, true));
    for (const bool showsCaptions : {true, false}) {
        const std::string kind = showsCaptions ? "" : ", no captions";
        registerDocument("pie of 1000" + kind, pieChart(1000, showsCaptions));
        registerDocument("pie of 2000" + kind, pieChart(2000, showsCaptions));
    }
}

}  // namespace VEXA::Bench
