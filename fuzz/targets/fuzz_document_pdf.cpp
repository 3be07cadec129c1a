// A document of any bytes, painted as a page of a PDF.

#include "fuzz/support/DocumentPainting.h"
#include "fuzz/support/Fault.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

using namespace VEXA;

namespace {

SmartPtr<RenderContext> pdf(SmartPtr<IO::Stream> stream, SizeF) { return CairoSurface::pdf(std::move(stream)); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const Fuzz::Painting painting = Fuzz::paint({data, size}, &pdf);
    Fuzz::expectNoFault(painting.fault);
    Fuzz::expect(painting.refusal != 0 || painting.bytes.starts_with("%PDF"), "a picture that is no PDF");
    return 0;
}
