#include "tests/cairo/CairoTesting.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

const char* const kMixedText = "AV office 12 \u0645\u0631\u062D\u0628\u0627 \u56FE\u8868 \U0001F600 e\u0301\x01";

/// Every operation with numbers of every kind in every place: there is a picture, and readers have nothing against it.
TEST(CairoSurface, HostileNumbers) {
    const auto file = make<IO::MemoryStream>();
    const auto joined = CairoSurface::pdf(file, {.background = {}, .joinsDocuments = true});
    for (const float number : kHostileNumbers) {
        const Drawing all = [number](RenderContext& c) { drawEverything(c, number, kMixedText); };
        const Picture picture = drawn([&](RenderContext& c) {
            all(c);
            c.restoreState({});
            c.setFill(solid(0x00FF00));
            c.drawRectangle(0, 0, 5, 5, 0, 0);
        });
        expectPixel(picture, 2, 2, 0xFF00FF00, "what comes after " + std::to_string(number) + " is drawn");
        drawPage(*joined, all, {200, 100});
    }
    joined->finish();
    expectSound(file->bytes());
    const std::string content = outputOf("qpdf --qdf --object-streams=disable INPUT - | strings", file->bytes());
    for (const char* noNumber : {" nan ", " inf ", "-nan ", "-inf "}) {
        EXPECT_EQ(content.find(noNumber), std::string::npos) << noNumber;
    }
}

TEST(CairoSurface, LongTexts) {
    const String text(std::u32string(200'000, U'W'));
    const auto draw = [&](RenderContext& c) {
        c.setFill(solid(0));
        c.setFont(fontOf("sans-serif", 12));
        c.drawText(text, 1'000'000, 0, 20, 0, 0);
        c.setFont(fontOf("sans-serif", 0.001F));
        c.drawText(text, 1'000'000, 0, 10, 0, 0);
    };
    EXPECT_GT(drawn(draw).alphaAt(30, 17), 0);
    EXPECT_FALSE(pdfOf(draw).empty());
}

}  // namespace
}  // namespace VEXA
