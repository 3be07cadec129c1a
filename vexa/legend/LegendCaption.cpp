#include "vexa/legend/LegendCaption.h"

#include <algorithm>

#include "vexa/legend/VexaTextWrapper.h"

namespace VEXA {

LegendCaption wrapLegendCaption(const String& text, VexaRenderContext& context, float maxWidth, SourcePlace place) {
    VexaTextWrapper wrapper(text, WrapMode::SplitWords, context, maxWidth, place);
    const Vector<String>& lines = wrapper.wrap();
    const float gap = context.getTextDescent();
    LegendCaption caption;
    caption.isCut = wrapper.isCut();
    caption.lines.reserve(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const SizeF& line = wrapper.getLineSizes()[i];
        caption.lines.push_back({lines[i], caption.size.height + line.height});
        caption.size.width = std::max(caption.size.width, line.width);
        caption.size.height += line.height + gap;
    }
    return caption;
}

}  // namespace VEXA
