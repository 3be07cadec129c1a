#include "vexa/surfaces/cairo/BlankGlyphs.h"

#include "vexa/fonts/SystemFontService.h"

namespace VEXA {

namespace {

/// The spaces of typography, the widest first: a glyph as wide as what it lies on leaves no gap, which readers would
/// take for a space. The font that is always there has them.
constexpr std::u32string_view kSpaces = U"\u2003\u2001\u2002\u2000\u2007\u2004\u2005\u2008\u2006\u2009\u200A";

}  // namespace

unsigned long BlankGlyphs::glyphFor(const std::string& utf8) {
    font();
    const auto found = taken_.find(utf8);
    if (found != taken_.end()) return found->second;
    if (taken_.size() == glyphs_.size()) return glyphs_.front();
    return taken_.emplace(utf8, glyphs_[taken_.size()]).first->second;
}

const FontFace& BlankGlyphs::font() {
    if (!font_) find();
    return *font_;
}

void BlankGlyphs::find() {
    const SmartPtr<FontProgram> program = systemFontService()->getFont(Font());
    const ShapedText shaped = dynamic_cast<ShapingFontProgram&>(*program).shape(String(kSpaces));
    const GlyphRun& run = shaped.runs.at(0);
    for (const PlacedGlyph& glyph : run.glyphs) glyphs_.push_back(glyph.id);
    font_ = run.face;
}

}  // namespace VEXA
