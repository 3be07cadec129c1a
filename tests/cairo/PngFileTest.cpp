#include "vexa/surfaces/cairo/PngFile.h"

#include "tests/cairo/CairoTesting.h"
#include "vexa/support/core/Exception.h"

namespace VEXA {
namespace {

using namespace CairoTesting;

std::uint32_t numberAt(const std::string& bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = at; i < at + 4; ++i) number = number << 8U | static_cast<unsigned char>(bytes.at(i));
    return number;
}

const Drawing kNothing = [](RenderContext&) {};
const Drawing kFlood = painted(solid(0x123456), nullptr, [](auto& c) { c.drawRectangle(0, 0, 99, 99, 0, 0); });

TEST(PngFile, HasAlphaWhereSomethingShowsThrough) {
    EXPECT_EQ(pngOf(kNothing)[25], 6);
    EXPECT_EQ(pngOf(kFlood)[25], 2);
    EXPECT_EQ(pngOf(kNothing, {.background = colorOf(0xFFFFFF)})[25], 2);
}

TEST(PngFile, Resolution) {
    struct Case {
        float dpi;
        std::uint32_t pixelsPerMetre;  ///< dpi / 0.0254, rounded; 0 where nothing is told
    };
    for (const auto& [dpi, expected] :
         {Case{96, 3780}, {72, 2835}, {0.02F, 1}, {0, 0}, {-96, 0}, {kNaN, 0}, {1e30F, 0}}) {
        const std::string png = pngOf(kNothing, {.dpi = dpi, .background = {}});
        EXPECT_EQ(readPng(png).width, 40) << "the pixels stay as they are";
        const std::size_t chunk = png.find("pHYs");
        ASSERT_EQ(chunk != png.npos, expected > 0) << dpi;
        if (expected == 0) continue;
        EXPECT_EQ(numberAt(png, chunk + 4), expected);
        EXPECT_EQ(numberAt(png, chunk + 8), expected);
        EXPECT_EQ(png[chunk + 12], 1) << "metres";
    }
}

using Pattern = std::uint32_t (*)(int x, int y);

std::uint32_t noise(int x, int y) {
    auto hash = static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U;
    hash = (hash ^ hash >> 15U) * 0xC2B2AE3DU;
    return hash ^ hash >> 13U;
}

struct ImageCase {
    const char* why;
    int width;
    int height;
    Pattern pattern;  ///< colours not multiplied with alpha
};

const ImageCase kImages[] = {
    {"one pixel", 1, 1, [](int, int) { return 0xFF102030U; }},
    {"a column", 1, 5000, [](int, int y) { return 0xFF000000U | static_cast<std::uint32_t>(y / 7); }},
    {"no pixel like another one", 300, 300, [](int x, int y) { return noise(x, y) | 0xFF000000U; }},
    {"the widest", 32'767, 3, [](int x, int) { return 0xFF000000U | static_cast<std::uint32_t>(x / 100); }},
    {"with alpha", 300, 200, [](int x, int y) { return x < 100 ? 0U : noise(x / 3, y / 2); }},
    {"all transparent", 64, 64, [](int, int) { return 0U; }},
    {"the last pixel of an odd row is translucent", 5, 2,
     [](int x, int) { return x == 4 ? 0x80102030U : 0xFF0000FFU; }},
};

std::uint32_t multiplied(std::uint32_t pixel) {
    const std::uint32_t alpha = pixel >> 24U;
    std::uint32_t result = alpha << 24U;
    for (const unsigned shift : {0U, 8U, 16U}) result |= ((pixel >> shift & 0xFFU) * alpha + 127) / 255 << shift;
    return result;
}

TEST(PngFile, HoldsThePixels) {
    constexpr int kBeside = 3;  // pixels of memory behind each row
    for (const ImageCase& c : kImages) {
        std::vector<std::uint32_t> pixels;
        for (int y = 0; y < c.height; ++y) {
            for (int x = 0; x < c.width; ++x) pixels.push_back(multiplied(c.pattern(x, y)));
            pixels.insert(pixels.end(), kBeside, 0xDEADBEEFU);
        }
        const Picture picture = readPng(encodePng({pixels.data(), c.width, c.height, c.width + kBeside}, 0));
        ASSERT_EQ(picture.width, c.width) << c.why;
        ASSERT_EQ(picture.height, c.height) << c.why;
        int wrong = 0;
        for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
            const std::size_t row = i / static_cast<std::size_t>(c.width);
            if (multiplied(picture.pixels[i]) != pixels[i + row * kBeside]) ++wrong;
        }
        EXPECT_EQ(wrong, 0) << c.why;
    }
}

TEST(PngFile, FlatPicturesAreSmall) {
    std::vector<std::uint32_t> white(1'000'000, 0xFFFFFFFFU);
    EXPECT_LT(encodePng({white.data(), 1000, 1000, 1000}, 0).size(), 20000U) << "3 MB of pixels";
    EXPECT_LT(encodePng({white.data(), 10, 10, 10}, 0).size(), 120U);
}

TEST(PageLimits, AreToldBeforeAnythingIsAllocated) {
    struct Case {
        const char* why;
        SizeF page;
        float scale;
        int code;
    };
    const Case cases[] = {
        {"the widest", {32'767, 1}, 1, 0},
        {"a pixel wider", {32'768, 1}, 1, 35002},
        {"too high at this scale", {10, 1000}, 40, 35002},
        {"4 GB", {32'767, 32'767}, 1, 35002},
        {"more than any integer", {1e30F, 1e30F}, 1e8F, 35002},
        {"no width", {0, 10}, 1, 35000},
        {"a negative height", {10, -1}, 1, 35000},
        {"no number", {kNaN, 10}, 1, 35000},
        {"infinite", {10, kInfinity}, 1, 35000},
        {"no scale", {10, 10}, 0, 35001},
        {"a negative scale", {10, 10}, -2, 35001},
        {"a scale that is no number", {10, 10}, kNaN, 35001},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(codeOf([&] { pngOf(kNothing, {c.scale, 0, {}}, c.page); }), c.code) << c.why;
    }
    EXPECT_EQ(codeOf([] { pdfOf(kNothing, {}, {19'200, 10}); }), 0) << "a PDF of 200 inches";
    EXPECT_EQ(codeOf([] { pdfOf(kNothing, {}, {10, 19'201}); }), 35005) << "and more";
    EXPECT_EQ(codeOf([] { pdfOf(kNothing, {}, {-5, 10}); }), 35000) << "less than none";
}

// Under a clip without an inside nothing is painted, but counted.
TEST(PngLimits, ShapesOverShapes) {
    constexpr float kSide = 10'000;
    const struct {
        const char* why;
        Drawing draw;
        double fits;
    } cases[] = {
        {"areas", painted(solid(0), nullptr, [](auto& c) { c.drawRectangle(0, 0, kSide, kSide, 0, 0); }), 1000},
        {"those of a gradient",
         painted(redToBlue(), nullptr, [](auto& c) { c.drawRectangle(0, 0, kSide, kSide, 0, 0); }), 125},
        {"a fourth of an area on the page",
         painted(solid(0), nullptr, [](auto& c) { c.drawRectangle(kSide / 2, kSide / 2, 9e5F, 9e5F, 0, 0); }), 4000},
        {"outlines as well", painted(solid(0), pen(0), [](auto& c) { c.drawRectangle(0, 0, kSide, kSide, 0, 0); }),
         500},
        {"a broad line", painted(nullptr, pen(0, 3 * kSide), [](auto& c) { c.drawLine(0, 0, 0, 1); }), 1000},
    };
    for (const auto& c : cases) {
        const auto png = CairoSurface::png(make<IO::MemoryStream>());
        png->beginDocument();
        png->beginPage({kSide, kSide});
        png->setClip(PathCommand::rectangle(0, 0, 0, 0, 0, 0));
        for (double i = 0; i < c.fits; ++i) c.draw(*png);
        EXPECT_EQ(codeOf([&] { c.draw(*png); }), 35008) << c.why;
    }
}

TEST(CairoSurface, PagesComeInOrder) {
    const auto png = CairoSurface::png(make<IO::MemoryStream>());
    EXPECT_THROW(png->endPage(), UnreacheableCodeException) << "none was begun";
    EXPECT_THROW(png->drawLine(0, 0, 1, 1), UnreacheableCodeException);
    EXPECT_THROW(png->drawText("a", 1, 0, 0, 0, 0), UnreacheableCodeException);
    png->beginDocument();
    EXPECT_THROW(png->endDocument(), UnreacheableCodeException) << "a PNG without a page";
    png->beginPage({10, 10});
    png->endPage();
    EXPECT_THROW(png->drawLine(0, 0, 1, 1), UnreacheableCodeException) << "the page has ended";
    EXPECT_THROW(png->beginPage({10, 10}), UnreacheableCodeException) << "a second page";
    const auto pdf = CairoSurface::pdf(make<IO::MemoryStream>());
    pdf->beginDocument();
    EXPECT_THROW(pdf->endDocument(), UnreacheableCodeException) << "a PDF without a page";
    pdf->beginPage({10, 10});
    EXPECT_THROW(pdf->beginPage({10, 10}), UnreacheableCodeException) << "the last one has not ended";
}

}  // namespace
}  // namespace VEXA
