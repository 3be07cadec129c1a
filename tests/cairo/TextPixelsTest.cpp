#include "tests/cairo/CairoTesting.h"
#include "vexa/support/drawing/FontService.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

constexpr std::uint32_t kInk = 0xFF102030;
constexpr SizeF kPage{160, 120};

/// Where a unit of Liberation Sans, 1/2048 em, is 0.05 px.
constexpr float kSize = 102.4F;

/// Without a brush of its own.
Drawing letters(const String& text, float x, float y, float size, int length = 1000) {
    return [=](RenderContext& c) {
        c.setFont(fontOf("sans-serif", size));
        c.drawText(text, length, x, y, 0, 0);
    };
}

/// On the line y = 80.
Drawing lettered(const String& text, float x, float size = kSize, float opacity = 1) {
    return painted(solid(0x102030, opacity), nullptr, letters(text, x, 80, size));
}

std::uint32_t covered(double part) { return (static_cast<std::uint32_t>(part * 255 + 0.5) << 24U) | 0x102030U; }

void expectText(const PixelCase& c) {
    const Picture picture = drawn(c.draw, {}, kPage);
    for (const auto& [x, y, pixel] : c.pixels) expectPixel(picture, x, y, pixel, c.why, c.tolerance);
}

// The letter I is the rectangle from 189 to 380 and from 0 to 1409: 9.45 to 19 px, 70.45 px high. Where the next one
// stands, spaced, turned or scaled letters, and colours over them are compared in tests/pictures.
TEST(TextPixels, GlyphsStandInTheirVeryPlaces) {
    constexpr int kLoose = 12;  // faint colours are kept with less than 8 bits
    const auto fill = solid(0x102030);
    const PixelCase cases[] = {
        {"edges",
         lettered("I", 0),
         {{9, 40, covered(0.55)},
          {10, 40, kInk},
          {18, 40, kInk},
          {19, 40, 0},
          {14, 9, covered(0.45)},
          {14, 10, kInk},
          {14, 79, kInk},
          {14, 80, 0}},
         kLoose},
        {"a quarter of a pixel to the right",
         lettered("I", 0.25F),
         {{9, 40, covered(0.3)}, {10, 40, kInk}, {19, 40, covered(0.25)}, {20, 40, 0}},
         kLoose},
        {"only so many characters",
         painted(fill, nullptr, letters("II", 0, 80, kSize, 1)),
         {{14, 40, kInk}, {42, 40, 0}}},
        {"fewer than none", painted(fill, nullptr, letters("I", 80, 80, kSize, -1)), {{94, 40, 0}}},
        {"larger than a mask is made for: 94.5 to 190 px",
         painted(fill, nullptr, letters("I", -80, 500, 1024)),
         {{13, 60, 0}, {14, 60, covered(0.5)}, {15, 60, kInk}, {109, 119, kInk}, {110, 60, 0}},
         kLoose},
        {"without a font", painted(fill, nullptr, [](auto& c) { c.drawText("I", 1, 0, 80, 0, 0); }), {{14, 40, 0}}},
        {"without a fill, a stroke does not help",
         painted(nullptr, pen(0, 2), letters("I", 0, 80, kSize)),
         {{14, 40, 0}, {9, 40, 0}}},
    };
    for (const PixelCase& c : cases) expectText(c);
}

TEST(TextPixels, WhoMeasuresOtherwiseStillSeesLetters) {
    const auto before = FontManager::setService(fixedWidthFontService());
    expectText({"a program without glyphs", lettered("I", 0), {{14, 40, kInk}, {30, 40, 0}}});
    FontManager::setService(before);
}

/// Letters of Arabic meet within a pixel, where each covers a part of it.
TEST(TextPixels, JoinedLettersHaveNoSeams) {
    const Picture picture = drawn(lettered("\u0640\u0640\u0640\u0640", 10.3F, 41.7F), {}, kPage);
    int fullRows = 0;
    for (int y = 0; y < picture.height; ++y) {
        int first = 0;
        int last = picture.width - 1;
        while (first < last && picture.alphaAt(first, y) == 0) ++first;
        while (last > first && picture.alphaAt(last, y) == 0) --last;
        bool isFull = last > first + 20;
        for (int x = first + 2; x < last - 1; ++x) isFull = isFull && picture.alphaAt(x, y) >= 250;
        if (isFull) ++fullRows;
    }
    EXPECT_GE(fullRows, 1);
}

struct Inked {
    int colored = 0;  ///< pixels whose components differ
    int strongest = 0;
    int pixels = 0;
};

Inked inkOf(const Picture& picture) {
    Inked ink;
    for (const std::uint32_t pixel : picture.pixels) {
        const auto red = static_cast<int>(pixel >> 16U & 0xFFU);
        const auto blue = static_cast<int>(pixel & 0xFFU);
        if (pixel >> 24U > 0) ++ink.pixels;
        if (pixel >> 24U > 200 && std::abs(red - blue) > 60) ++ink.colored;
        ink.strongest = std::max(ink.strongest, static_cast<int>(pixel >> 24U));
    }
    return ink;
}

TEST(TextPixels, EmojiBringTheirColoursAndBoxesStandForWhatIsMissing) {
    const Inked face = inkOf(drawn(lettered("\U0001F600", 10, 60), {}, kPage));
    EXPECT_GT(face.colored, 1000) << "a face of 60 px is mostly yellow";
    EXPECT_LT(face.pixels, 75 * 75) << "and no larger than its em and a quarter";
    EXPECT_NEAR(inkOf(drawn(lettered("\U0001F600", 10, 60, 0.5F), {}, kPage)).strongest, 128, 2)
        << "with the opacity of the fill";
    EXPECT_GT(inkOf(drawn(lettered("\U000F0000", 10, 60), {}, kPage)).pixels, 50) << "a box";
    EXPECT_EQ(inkOf(drawn(lettered(" \u2003", 10, 60), {}, kPage)).pixels, 0);
}

/// The shape of a text does not depend on how it is drawn: as a mask, or when large as a path.
TEST(TextPixels, MasksAndPathsCoverTheSame) {
    const auto inkAt = [](float size) {
        double ink = 0;
        const Drawing text = painted(solid(0), nullptr, letters("ag&8", 1, size, size));
        const Picture picture = drawn(text, {}, {size * 3, size * 1.4F});
        for (const std::uint32_t pixel : picture.pixels) ink += pixel >> 24U;
        return ink / 255 / size / size;  // in em x em
    };
    EXPECT_NEAR(inkAt(300), inkAt(600), 0.0005);
    EXPECT_NEAR(inkAt(12), inkAt(600), 0.01) << "a small one as well";
}

}  // namespace
}  // namespace VEXA
