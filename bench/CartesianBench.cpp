#include <benchmark/benchmark.h>

#include "bench/CartesianDocuments.h"
#include "bench/ExpatAlone.h"
#include "bench/PeakMemory.h"
#include "vexa/engine/VexaEngine.h"
#include "vexa/surfaces/NullSurface.h"
#include "vexa/surfaces/SvgSurface.h"

// Bar, line and text-axis charts of 1,000 to 1,000,000 points: nanoseconds and bytes of memory for each point.

namespace VEXA::Bench {
namespace {

void load(const std::string& document) {
    benchmark::DoNotOptimize(VexaEngine::loadStream(make<IO::ViewStream>(document)));
}

void paintNull(const std::string& document) {
    VexaEngine::renderPage(make<IO::ViewStream>(document), make<NullSurface>());
}

void paintSvg(const std::string& document) {
    const auto out = make<IO::MemoryStream>();
    VexaEngine::renderPage(make<IO::ViewStream>(document), make<SvgSurface>(out));
    benchmark::DoNotOptimize(out->bytes().data());
}

std::size_t peakOf(const std::string& document, void (*work)(const std::string&)) {
    const PeakMemory memory;
    work(document);
    return memory.bytes();
}

void run(benchmark::State& state, const std::string& document, int points, void (*work)(const std::string&)) {
    const std::size_t peak = peakOf(document, work);
    for (auto _ : state) work(document);
    const auto each = static_cast<double>(points);
    state.counters["s/point"] =
        benchmark::Counter(each, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.counters["bytes/point"] = static_cast<double>(peak) / each;
}

void registerCharts(CartesianKind kind, const std::string& name) {
    for (const int points : {1000, 10'000, 100'000, 1'000'000}) {
        const auto add = [&](const char* what, void (*work)(const std::string&)) {
            const std::string title = name + '/' + std::to_string(points) + '/' + what;
            benchmark::RegisterBenchmark(title.c_str(), [=](benchmark::State& state) {
                run(state, cartesianChart(kind, points), points, work);
            })->Unit(benchmark::kMillisecond);
        };
        add("expat alone", &expatAlone);
        add("load", &load);
        add("null surface", &paintNull);
        add("SVG", &paintSvg);
    }
}

}  // namespace

void registerCartesianBenchmarks() {
    registerCharts(CartesianKind::Line, "line");
    registerCharts(CartesianKind::TextLine, "line on a text axis");
    registerCharts(CartesianKind::ClusteredBars, "10 series of clustered bars");
    registerCharts(CartesianKind::StackedBars, "10 series of stacked bars");
}

}  // namespace VEXA::Bench
