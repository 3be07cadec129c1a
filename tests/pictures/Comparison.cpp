#include "tests/pictures/Comparison.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "tests/pictures/Renderers.h"

namespace VEXA::Testing {

namespace {

struct Tolerance {
    float worst;
    float mean;
};

/// At full contrast, an edge that is moved by a seventh of a pixel.
constexpr Tolerance kSvg{12, 3};

/// Where many edges meet, as in the middle of a pie, coverage adds up differently at twice the size.
constexpr Tolerance kSvgChart{26, 3};

/// By a third: pdftoppm moves letters onto its pixels, however small, and each further than rsvg-convert.
constexpr Tolerance kPdf{27, 5};

/// What another program draws differently, and why; `unseen` is not looked at.
struct Allowance {
    const char* drawing;
    const char* surface;
    Tolerance tolerance;
    const char* reason;
    Area unseen = {};
};

constexpr const char* kSpaces = "rsvg-convert takes a space from the font of the letters before it, a pixel off";

constexpr Allowance kAllowances[] = {
    {"Arabic, a number and Latin", "SVG", {70, 9}, kSpaces},
    {"Latin, Han and Arabic", "SVG", {90, 15}, kSpaces},
    {"hotel-reviews",
     "chart as SVG",
     {30, 3},
     "emoji in one colour, and a figure behind Han letters higher",
     {32, 18, 26, 26}},
};

std::string fileNameOf(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '-');
    return text + ".png";
}

Allowance allowanceFor(const std::string& drawing, const std::string& surface) {
    const auto* const found = std::find_if(std::begin(kAllowances), std::end(kAllowances), [&](const Allowance& each) {
        return each.drawing == drawing && each.surface == surface;
    });
    if (found != std::end(kAllowances)) return *found;
    const bool isPdf = surface.ends_with("PDF");
    return {"", "", isPdf ? kPdf : surface == "SVG" ? kSvg : kSvgChart, "usual"};
}

Picture without(const Area& area, Picture picture) {
    picture.paste(Picture(area.width, area.height), area.x, area.y);
    return picture;
}

Difference differenceBut(const Allowance& allowance, const Picture& png, const Picture& other) {
    return differenceOf(without(allowance.unseen, png), without(allowance.unseen, other));
}

}  // namespace

bool areAlike(const std::string& drawing, const std::string& surface, const Picture& png, const Picture& other) {
    const Allowance allowance = allowanceFor(drawing, surface);
    const Difference difference = differenceBut(allowance, png, other);
    return difference.worst <= allowance.tolerance.worst && difference.mean <= allowance.tolerance.mean;
}

void expectAlike(const std::string& drawing, const std::string& surface, const Picture& png, const Picture& other) {
    if (areAlike(drawing, surface, png, other)) return;
    const Difference difference = differenceBut(allowanceFor(drawing, surface), png, other);
    const std::string file = outputFile(fileNameOf(surface + " " + drawing));
    writeComparison(png, other, file);
    ADD_FAILURE() << drawing << ": PNG and " << surface << " differ by " << difference.worst << " about ("
                  << difference.x << ", " << difference.y << "), by " << difference.mean << " on the whole; see "
                  << file << " (PNG, difference, " << surface << ")";
}

}  // namespace VEXA::Testing
