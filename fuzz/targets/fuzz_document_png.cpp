// A document of any bytes, painted as pixels: a small picture whatever the page, so that time goes into drawing.

#include <algorithm>

#include "fuzz/support/DocumentPainting.h"
#include "fuzz/support/Fault.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

using namespace VEXA;

namespace {

constexpr float kMostPixels = 200;  // of a side

SmartPtr<RenderContext> smallPng(SmartPtr<IO::Stream> stream, SizeF page) {
    PngOptions options;
    const float side = std::max(page.width, page.height);
    if (side > kMostPixels) options.scale = kMostPixels / side;
    return CairoSurface::png(std::move(stream), options);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const Fuzz::Painting painting = Fuzz::paint({data, size}, &smallPng);
    Fuzz::expectNoFault(painting.fault);
    Fuzz::expect(painting.refusal != 0 || painting.bytes.starts_with("\x89PNG"), "a picture that is no PNG");
    return 0;
}
