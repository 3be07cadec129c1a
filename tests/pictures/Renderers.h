#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/pictures/Picture.h"
#include "tests/pictures/Scenes.h"

namespace VEXA::Testing {

/// Draws a whole document of one page.
using Document = std::function<void(const SmartPtr<RenderContext>&)>;

Document documentOf(const Drawing& draw, SizeF page);

/// The pictures of our PNG surface.
std::vector<Picture> drawnAsPng(const std::vector<Document>& documents);

// Other programs draw in pixels `fineness` times as small as ours, since they move things onto their pixels: pdftoppm
// thin lines and letters, rsvg-convert (by cairo 1.16) letters. A failure of such a program fails the test and gives
// empty pictures. `name` tells the files in the build directory from those of other calls.

/// The pictures that rsvg-convert makes of our SVG documents; they stand on one sheet, so that it runs once.
std::vector<Picture> drawnAsSvg(const std::string& name, const std::vector<Document>& documents, int fineness = 4);

/// The pictures that pdftoppm makes of our PDF pages, all in one file.
std::vector<Picture> drawnAsPdf(const std::string& name, const std::vector<Document>& documents, int fineness = 8);

/// A file of that name in the build directory.
std::string outputFile(const std::string& name);

}  // namespace VEXA::Testing
