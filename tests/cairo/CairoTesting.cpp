#include "tests/cairo/CairoTesting.h"

#include <png.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <regex>

#include "vexa/support/core/Exception.h"

/// The thread sanitizer does not see the atomic operations of libraries that were built without it.
extern "C" const char* __tsan_default_suppressions() { return "called_from_lib:libcairo.so\n"; }

namespace VEXA::CairoTesting {

std::uint32_t Picture::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) return 0;
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
}

Picture readPng(const std::string& bytes) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    EXPECT_TRUE(png_image_begin_read_from_memory(&image, bytes.data(), bytes.size())) << image.message;
    image.format = PNG_FORMAT_BGRA;
    Picture picture{static_cast<int>(image.width), static_cast<int>(image.height), {}};
    picture.pixels.resize(std::size_t{image.width} * image.height);
    EXPECT_TRUE(png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr)) << image.message;
    EXPECT_EQ(image.warning_or_error, 0U) << image.message;
    return picture;
}

void drawPage(CairoSurface& surface, const Drawing& draw, SizeF size, bool fails) {
    surface.beginDocument();
    surface.beginPage(size);
    draw(surface);
    surface.restoreState({});
    if (fails) return;
    surface.endPage();
    surface.endDocument();
}

int codeOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Exception& exception) {
        return exception.getCode();
    }
    return 0;
}

std::string pngOf(const Drawing& drawing, const PngOptions& options, SizeF page) {
    const auto stream = make<IO::MemoryStream>();
    drawPage(*CairoSurface::png(stream, options), drawing, page);
    return stream->bytes();
}

std::string pdfOf(const Drawing& drawing, const DocumentInfo& info, SizeF page, const PdfOptions& options) {
    const auto stream = make<IO::MemoryStream>();
    const auto surface = CairoSurface::pdf(stream, options);
    surface->setDocumentInfo(info);
    drawPage(*surface, drawing, page);
    return stream->bytes();
}

Picture drawn(const Drawing& drawing, const PngOptions& options, SizeF page) {
    return readPng(pngOf(drawing, options, page));
}

std::string outputOf(const std::string& command, const std::string& input) {
    const std::string file = "/tmp/vexa-cairo-test-" + std::to_string(getpid());
    std::ofstream(file, std::ios::binary) << input;
    std::string line = command;
    line.replace(line.find("INPUT"), 5, file);
    std::FILE* const pipe = popen(line.c_str(), "r");
    if (pipe == nullptr) return {};
    std::string output;
    std::array<char, 4096> buffer;
    for (std::size_t size; (size = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
        output.append(buffer.data(), size);
    }
    EXPECT_EQ(pclose(pipe), 0) << line;
    std::remove(file.c_str());
    return output;
}

void expectSound(const std::string& pdf) { outputOf("qpdf --check INPUT >/dev/null", pdf); }

std::string plainTextOf(const std::string& pdf) {
    const std::string text = outputOf("pdftotext INPUT -", pdf);
    return std::regex_replace(std::regex_replace(text, std::regex("[ \\f\n]+"), " "), std::regex("^ | $"), "");
}

Drawing written(const String& text, float x, float y, float size) {
    return [=](RenderContext& c) {
        c.setFill(solid(0));
        c.setFont(fontOf("sans-serif", size));
        c.drawText(text, 1000, x, y, 0, 0);
    };
}

Picture renderedPdf(const std::string& pdf) { return readPng(outputOf("pdftoppm -r 96 -png -f 1 -l 1 INPUT", pdf)); }

void expectPixel(const Picture& picture, int x, int y, std::uint32_t expected, const std::string& why, int tolerance) {
    const std::uint32_t found = picture.at(x, y);
    if (expected >> 24U == 0 && found >> 24U <= static_cast<std::uint32_t>(tolerance)) return;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        const auto wanted = static_cast<int>(expected >> shift & 0xFFU);
        EXPECT_NEAR(static_cast<int>(found >> shift & 0xFFU), wanted, tolerance)
            << why << ": component " << shift << " at " << x << ", " << y;
    }
}

void expectPixels(const PixelCase& c) {
    const Picture picture = drawn(c.draw);
    for (const auto& [x, y, pixel] : c.pixels) expectPixel(picture, x, y, pixel, c.why, c.tolerance);
}

}  // namespace VEXA::CairoTesting
