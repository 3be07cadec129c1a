#include "cli/PictureArguments.h"

#include <limits>

#include "cli/NumberText.h"
#include "vexa/support/values/ColorText.h"

namespace VEXA::Cli {
namespace {

constexpr float kPixelsPerInch = 96;  // CSS reference pixel

std::string isNot(const char* option, const std::string& text, const char* wanted) {
    return std::string(option) + " \"" + text + "\" is not " + wanted;
}

float readScale(const std::string& text, std::string& problem) {
    const auto scale = readNumber(text, std::numeric_limits<float>::min(), std::numeric_limits<float>::max());
    if (!scale) problem = isNot("--scale", text, "a number above 0");
    return scale.value_or(1);
}

float readDpi(const std::string& text, std::string& problem) {
    constexpr float kMaxDpi = 100'000;  // PNG counts pixels to the metre in 31 bits; no device comes near
    const auto dpi = readNumber(text, 1, kMaxDpi);
    if (!dpi) problem = isNot("--dpi", text, "a number from 1 to 100000");
    return dpi.value_or(0);
}

SmartPtr<Color> readColor(const std::string& text, std::string& problem) {
    if (const auto rgb = parseColor(text)) return makeColor(*rgb);
    problem = isNot("--background", text, "a colour (write #rgb, #rrggbb, rgb(r, g, b) or a CSS colour name)");
    return {};
}

std::string misfit(const RenderOptions& options, OutputFormat format) {
    const auto isFor = [&](const char* option, const char* formats) {
        return std::string(option) + " is for " + formats + ", and the format here is " +
               std::string(extensionOf(format));
    };
    if (options.scale && format != OutputFormat::Png) return isFor("--scale", "png");
    if (options.dpi && format != OutputFormat::Png) return isFor("--dpi", "png");
    const bool hasBackground = format == OutputFormat::Png || format == OutputFormat::Pdf;
    if (options.background && !hasBackground) return isFor("--background", "png and pdf");
    return {};
}

}  // namespace

PictureOptions readPictureOptions(const RenderOptions& options, OutputFormat format, std::string& problem) {
    PictureOptions picture;
    problem = misfit(options, format);
    if (!problem.empty()) return picture;
    if (options.background) picture.background = readColor(*options.background, problem);
    if (options.dpi) {
        picture.dpi = readDpi(*options.dpi, problem);
        picture.scale = picture.dpi / kPixelsPerInch;  // the picture keeps the size that the document gives it
    }
    if (options.scale) picture.scale = readScale(*options.scale, problem);
    return picture;
}

}  // namespace VEXA::Cli
