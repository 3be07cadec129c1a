#pragma once

#include <hb.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace VEXA {

/// Characters that readers see as one, which must come from one face: a letter with its marks, a flag, an emoji made of
/// several.
struct TextCluster {
    std::uint32_t begin = 0;  ///< of its first character; it ends where the next one begins
    hb_script_t script = HB_SCRIPT_LATIN;
    bool isNeutral = false;  ///< has no script of its own
    bool isEmoji = false;    ///< wanted in colour
    bool isCut = false;      ///< goes on with marks of the cluster before, which had too many
};

/// The clusters of a text, in its order. Signs and spaces have the script of the letters before them, at the beginning
/// of those after them; Latin where there are none. More than 32 characters are cut apart. Throws Exception 1007
/// without HarfBuzz.
std::vector<TextCluster> splitClusters(std::u32string_view text);

}  // namespace VEXA
