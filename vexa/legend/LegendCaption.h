#pragma once

#include "vexa/style/VexaRenderContext.h"

namespace VEXA {

/// The caption of a legend item, broken into lines.
struct LegendCaption {
    struct Line {
        String text;
        float baseline = 0;  ///< px below the caption's top
    };
    Vector<Line> lines;
    /// The widest line; the height of all lines, each with the font's descent as a gap below it. In px.
    SizeF size;
    bool isCut = false;  ///< VexaTextWrapper::isCut
};

/// Breaks a text into lines no wider than `maxWidth` px, in the font that is current on the surface; words that are
/// wider are split. No lines without room. `place` is the element that a warning about too many lines names.
LegendCaption wrapLegendCaption(const String& text, VexaRenderContext& context, float maxWidth, SourcePlace place);

}  // namespace VEXA
