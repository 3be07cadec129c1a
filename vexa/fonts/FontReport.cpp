#include "vexa/fonts/FontReport.h"

#include <algorithm>

#include "vexa/fonts/SystemFontService.h"
#include "vexa/support/core/Exception.h"

namespace VEXA {

namespace {

ReportedRun reportOf(const GlyphRun& run, const String& text, double pixels) {
    return {text.subString(run.firstCharacter, run.characterCount),
            run.face->name(),
            run.face->data()->file(),
            run.isRightToLeft,
            run.glyphs.size(),
            run.advance * pixels};
}

}  // namespace

FontReport describeFonts(FontService& service, const Font& font, const String& text) {
    const SmartPtr<FontProgram> found = service.getFont(font);
    const auto* const program = dynamic_cast<const ShapingFontProgram*>(found.get());
    if (program == nullptr) raise(UnreacheableCodeException("the font service does not shape"), "FontReport", __LINE__);
    const FontFace& face = program->primaryFace();
    ShapedText shaped = program->shape(text);
    std::sort(shaped.runs.begin(), shaped.runs.end(),
              [](const GlyphRun& a, const GlyphRun& b) { return a.firstCharacter < b.firstCharacter; });
    const double pixels = static_cast<double>(font.getFontSize()) / face.metrics().unitsPerEm;
    FontReport report{face.name(), face.data()->file(), {}, shaped.advance * pixels, shaped.missing};
    for (const GlyphRun& run : shaped.runs) report.runs.push_back(reportOf(run, text, pixels));
    return report;
}

}  // namespace VEXA
