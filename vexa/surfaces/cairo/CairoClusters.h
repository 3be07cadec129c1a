#pragma once

#include <string>
#include <string_view>

#include "vexa/fonts/ShapedText.h"
#include "vexa/support/core/Vector.h"
#include "vexa/surfaces/cairo/CairoLibrary.h"

namespace VEXA {

/// What the glyphs of a run show, as cairo wants it: clusters in the order of the glyphs, each so many bytes and
/// glyphs. Those of a run from right to left stand in the order in which they are seen, as other programs write them
/// too: readers of PDF put words together from left to right, and then turn them.
struct CairoClusters {
    std::string utf8;
    Vector<cairo_text_cluster_t> clusters;
};

/// `characters` is the text that the run was shaped from. Every character of the run belongs to a cluster; control
/// characters are drawn as spaces, and are spaces here; noncharacters are U+FFFD.
CairoClusters clustersOf(const GlyphRun& run, std::u32string_view characters);

}  // namespace VEXA
