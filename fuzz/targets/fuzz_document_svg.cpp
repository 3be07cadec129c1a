// A document of any bytes, painted as SVG.

#include "fuzz/support/DocumentPainting.h"
#include "fuzz/support/Fault.h"
#include "fuzz/support/PictureFaults.h"

using namespace VEXA::Fuzz;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const Painting painting = paint({data, size}, &svgSurface);
    expectNoFault(painting.fault);
    if (painting.refusal == 0) expectNoFault(svgFault(painting.bytes));
    return 0;
}
