#include "vexa/surfaces/cairo/PlacedText.h"

#include <algorithm>
#include <cmath>

#include "vexa/fonts/SystemFontService.h"
#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

SmartPtr<ShapingFontProgram> shapingProgramOf(const SmartPtr<Font>& font) {
    const SmartPtr<FontProgram> measured = FontManager::getFont(font);
    if (auto* const shaping = dynamic_cast<ShapingFontProgram*>(measured.get())) return shaping;
    static const std::shared_ptr<FontService> system = systemFontService();
    const SmartPtr<FontProgram> drawn = system->getFont(*font);
    if (auto* const shaping = dynamic_cast<ShapingFontProgram*>(drawn.get())) return shaping;
    raise(UnreacheableCodeException("the system's font service gives a program without glyphs"), "CairoSurface",
          __LINE__);
}

/// Takes glyphs, from left to right, to user space and adds the spacing between clusters.
class Placement {
public:
    Placement(PointF at, double unit, double spacing) noexcept : at_(at), unit_(unit), spacing_(spacing) {}

    Vector<cairo_glyph_t> place(const std::vector<PlacedGlyph>& glyphs) {
        Vector<cairo_glyph_t> placed;
        placed.reserve(glyphs.size());
        const PlacedGlyph* before = nullptr;
        for (const PlacedGlyph& glyph : glyphs) {
            if (before == nullptr || glyph.cluster != before->cluster) ++clusters_;
            before = &glyph;
            const double x = at_.x + glyph.x * unit_ + (clusters_ - 1) * spacing_;
            placed.push_back({glyph.id, x, at_.y + glyph.y * unit_});
        }
        return placed;
    }

    PathBox boxOf(double advance, const FontMetrics& metrics) const noexcept {
        const double width = advance * unit_ + clusters_ * spacing_;
        return {at_.x, at_.y - metrics.ascent * unit_, at_.x + width, at_.y + metrics.descent * unit_};
    }

private:
    PointF at_;
    double unit_;  ///< px to the font unit
    double spacing_;
    double clusters_ = 0;
};

}  // namespace

PlacedText placeText(const String& text, const SmartPtr<Font>& font, PointF at, float spacing) {
    const SmartPtr<ShapingFontProgram> program = shapingProgramOf(font);
    const FontMetrics metrics = program->getMetrics();
    const double size = std::min(font->getFontSize(), Limits::kFontSize);
    Placement placement(at, size / metrics.unitsPerEm, std::isfinite(spacing) ? spacing : 0);
    PlacedText placed{.shaped = program->shape(text)};
    placed.runs.reserve(placed.shaped.runs.size());
    for (const GlyphRun& run : placed.shaped.runs) {
        placed.runs.push_back({&run, text.view(), size, placement.place(run.glyphs)});
    }
    placed.box = placement.boxOf(placed.shaped.advance, metrics);
    return placed;
}

}  // namespace VEXA
