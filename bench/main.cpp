#include <benchmark/benchmark.h>

#include "vexa/cartesian/VexaDataPoint.h"
#include "vexa/cartesian/VexaSerie.h"
#include "vexa/pie/VexaSlice.h"
#include "vexa/spider/VexaSpiderAxis.h"
#include "vexa/spider/VexaSpiderDataPoint.h"

namespace VEXA::Bench {

void registerRenderBenchmarks();
void registerCartesianBenchmarks();

namespace {

template <class T>
void addSize(const char* name) {
    benchmark::AddCustomContext(std::string("sizeof ") + name, std::to_string(sizeof(T)) + " bytes");
}

}  // namespace
}  // namespace VEXA::Bench

int main(int argc, char** argv) {
    using namespace VEXA;
    using namespace VEXA::Bench;
    addSize<VexaDataPoint>("data-point");
    addSize<VexaSerie>("serie");
    addSize<VexaSlice>("slice");
    addSize<VexaSpiderAxis>("spider-axis");
    addSize<VexaSpiderDataPoint>("spider-data-point");
    addSize<AttributeBox<Value>>("a given value");
    registerRenderBenchmarks();
    registerCartesianBenchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
