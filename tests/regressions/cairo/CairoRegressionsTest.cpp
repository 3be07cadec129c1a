#include <algorithm>

#include "tests/regressions/RegressionDocuments.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

namespace VEXA::Testing {
namespace {

constexpr int kLibraryFailed = 35003;

/// A picture of a few pixels; what is drawn is the same.
SmartPtr<RenderContext> smallPng(SmartPtr<IO::Stream> stream, SizeF page) {
    PngOptions options;
    options.scale = 100 / std::max({page.width, page.height, 100.0F});
    return CairoSurface::png(std::move(stream), options);
}

TEST(Regressions, EveryDocumentIsPaintedOrRefusedAsPngAndPdf) {
    for (const RegressionDocument& document : regressionDocuments()) {
        const Fuzz::Painting png = Fuzz::paint(document.text, &smallPng);
        EXPECT_TRUE(png.refusal != 0 || png.bytes.starts_with("\x89PNG")) << document.name;
        const Fuzz::Painting pdf = Fuzz::paint(
            document.text, [](SmartPtr<IO::Stream> stream, SizeF) { return CairoSurface::pdf(std::move(stream)); });
        EXPECT_TRUE(pdf.refusal != 0 || pdf.bytes.starts_with("%PDF")) << document.name;
        EXPECT_EQ(png.fault + pdf.fault, "") << document.name;
        for (const Fuzz::Painting* picture : {&png, &pdf})
            EXPECT_NE(picture->refusal, kLibraryFailed) << document.name << " is refused by cairo itself";
    }
}

}  // namespace
}  // namespace VEXA::Testing
