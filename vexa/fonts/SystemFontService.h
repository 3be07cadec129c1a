#pragma once

#include <string>
#include <vector>

#include "vexa/fonts/ShapedText.h"
#include "vexa/support/drawing/FontService.h"

namespace VEXA {

/// A program that can tell the glyphs it measured. Its units are those of its first face.
class ShapingFontProgram : public FontProgram {
public:
    /// The text on one line: shaped, in visual order, missing characters from other fonts. Characters without any glyph
    /// are noted with FontManager and shown as a box.
    virtual ShapedText shape(const String& text) const = 0;
    /// The face that the family resolved to.
    virtual const FontFace& primaryFace() const = 0;

protected:
    using FontProgram::FontProgram;
};

struct SystemFontOptions {
    /// Directories of the caller's fonts, searched with what is below them, the first one first. They come before the
    /// machine's own.
    std::vector<std::string> directories;
};

/// The fonts of the machine. `sans-serif`, Liberation Sans, Arial and Helvetica are Liberation Sans, compiled in: for
/// its own characters nothing is opened. Other families, and characters that the family lacks, are looked for through
/// fontconfig when first met. Every program it gives is a ShapingFontProgram. Safe from several threads.
/// Throws Exception when a directory cannot be read, holds no font or one that is cut off.
std::shared_ptr<FontService> systemFontService(SystemFontOptions options = {});

}  // namespace VEXA
