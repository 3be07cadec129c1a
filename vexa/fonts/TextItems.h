#pragma once

#include <hb.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "vexa/fonts/Bidi.h"
#include "vexa/fonts/FaceFinder.h"

namespace VEXA {

/// A piece of a text that is shaped in one go: of one face, script and direction.
struct TextItem {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    FontFace* face = nullptr;
    hb_script_t script = HB_SCRIPT_LATIN;
    BidiLevel level = 0;

    bool isRightToLeft() const noexcept { return level % 2 == 1; }
};

/// Cuts a text into as few such pieces as possible, in its order. Characters that no font has go to the first face;
/// some of them are added to `missing`, each once.
std::vector<TextItem> itemize(std::u32string_view text, const FontStack& stack, FaceFinder& finder,
                              std::u32string& missing);

}  // namespace VEXA
