#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/surfaces/SurfaceTesting.h"
#include "vexa/surfaces/cairo/CairoSurface.h"

namespace VEXA::CairoTesting {

/// A PNG read by libpng: pixels 0xAARRGGBB, colours not multiplied with alpha.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    /// 0 outside of the picture.
    std::uint32_t at(int x, int y) const;
    int alphaAt(int x, int y) const { return static_cast<int>(at(x, y) >> 24U); }
};

/// Fails the test, and is empty, when libpng refuses the bytes.
Picture readPng(const std::string& bytes);

inline constexpr SizeF kSmallPage{40, 30};

/// Draws a document of one page that ends; with `fails` it breaks off in the middle.
void drawPage(CairoSurface& surface, const Drawing& draw, SizeF size, bool fails = false);

/// The code of the exception that an action ends with; else 0.
int codeOf(const std::function<void()>& action);

std::string pngOf(const Drawing& draw, const PngOptions& options = {}, SizeF page = kSmallPage);
std::string pdfOf(const Drawing& draw, const DocumentInfo& info = {}, SizeF page = {400, 300},
                  const PdfOptions& options = {});
Picture drawn(const Drawing& draw, const PngOptions& options = {}, SizeF page = kSmallPage);

/// What a command of the shell prints; `INPUT` in it is the name of a file with these bytes. Fails the test when it
/// ends with an error.
std::string outputOf(const std::string& command, const std::string& input);

/// Nothing of what a reader of PDF complains about.
void expectSound(const std::string& pdf);

/// The text of all pages on one line. pdftotext puts words from right to left between U+202B and U+202C.
std::string plainTextOf(const std::string& pdf);

/// The picture that pdftoppm makes of the first page, in pixels of 1/96 inch.
Picture renderedPdf(const std::string& pdf);

/// A text in black.
Drawing written(const String& text, float x = 20, float y = 50, float size = 20);

/// Each component may be off by the tolerance; a pixel that does not show may have any colour.
void expectPixel(const Picture& picture, int x, int y, std::uint32_t expected, const std::string& why,
                 int tolerance = 1);

struct PixelCase {
    const char* why;
    Drawing draw;
    struct Expected {
        int x;
        int y;
        std::uint32_t pixel;  ///< 0xAARRGGBB
    };
    std::vector<Expected> pixels;
    int tolerance = 1;
};

void expectPixels(const PixelCase& pixelCase);

}  // namespace VEXA::CairoTesting
