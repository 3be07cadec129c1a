// A document of any bytes, painted as a display list.

#include "fuzz/support/DocumentPainting.h"
#include "fuzz/support/Fault.h"
#include "fuzz/support/PictureFaults.h"

using namespace VEXA::Fuzz;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const Painting painting = paint({data, size}, &displayListSurface);
    expectNoFault(painting.fault);
    expectNoFault(displayListFault(painting.bytes));
    return 0;
}
