#include <thread>

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

/// What a thread draws: text in many scripts, gradients, clips; its number decides the place.
void drawMixed(RenderContext& c, int number) {
    const float shift = static_cast<float>(number) / 7;
    const char* const families[] = {"sans-serif", "Noto Serif", "DejaVu Sans"};
    for (int line = 0; line < 12; ++line) {
        c.setFill(line % 3 == 0 ? SmartPtr<Brush>(redToBlue()) : solid(0x202020, 0.8F));
        c.setFont(fontOf(families[line % 3], 8 + static_cast<float>(line)));
        c.drawText(kMixedText, 1000, 5 + shift, 20 + 15 * static_cast<float>(line), 0, 0);
    }
    c.setFill(nullptr);
    c.setStroke(pen(0x3366CC, 3));
    c.drawEllipse(150, 100, 80, 60);
}

/// Faces, cairo's caches and FreeType's library are shared.
TEST(CairoSurface, ThreadsDrawTheSame) {
    constexpr int kThreads = 8;
    constexpr int kRounds = 6;
    constexpr SizeF kPage{300, 220};
    std::string expectedPng[kRounds];
    std::string expectedPdf[kRounds];
    int different[kThreads] = {};
    for (int round = 0; round < kRounds; ++round) {
        const Drawing draw = [round](RenderContext& c) { drawMixed(c, round); };
        expectedPng[round] = pngOf(draw, {}, kPage);
        expectedPdf[round] = pdfOf(draw, {}, kPage);
    }
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&, thread] {
            for (int i = 0; i < kRounds; ++i) {
                const int round = (i + thread) % kRounds;
                const Drawing draw = [round](RenderContext& c) { drawMixed(c, round); };
                if (pngOf(draw, {}, kPage) != expectedPng[round]) ++different[thread];
                if (pdfOf(draw, {}, kPage) != expectedPdf[round]) ++different[thread];
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (int thread = 0; thread < kThreads; ++thread) EXPECT_EQ(different[thread], 0) << "thread " << thread;
}

}  // namespace
}  // namespace VEXA
