#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "vexa/support/drawing/FontService.h"

namespace VEXA {

/// A part of a text that one face shows in one direction.
struct ReportedRun {
    String text;
    std::string face;  ///< family and style, "Noto Sans CJK SC Bold"
    std::string file;  ///< empty when the face is built in
    bool isRightToLeft = false;
    std::size_t glyphCount = 0;
    double width = 0;  ///< in px
};

/// What fonts show a text, and how wide it is.
struct FontReport {
    std::string face;               ///< that the font's families resolve to
    std::string file;               ///< empty when the face is built in
    std::vector<ReportedRun> runs;  ///< in the order of the text
    double width = 0;               ///< in px
    std::u32string missing;         ///< characters that no font has, each once
};

/// Lays the text out on one line; an empty text gives the face alone. The service must be one that systemFontService
/// made.
FontReport describeFonts(FontService& service, const Font& font, const String& text);

}  // namespace VEXA
