#include "vexa/fonts/FallbackList.h"

#include <algorithm>

#include "vexa/fonts/GlyphCoverage.h"

namespace VEXA {

namespace {

constexpr char32_t blockOf(char32_t character) noexcept { return character >> 8U; }  // what fontconfig calls a page

const FcCharSet* charactersOf(const FcPattern& font) {
    FcCharSet* characters = nullptr;
    const bool found = fontconfig().PatternGetCharSet(&font, FC_CHARSET, 0, &characters) == FcResultMatch;
    return found ? characters : nullptr;
}

bool hasAll(const FcPattern& font, std::u32string_view characters) {
    const FcCharSet* const set = charactersOf(font);
    return std::all_of(characters.begin(), characters.end(),
                       [set](char32_t c) { return fontconfig().CharSetHasChar(set, c) != FcFalse; });
}

FontQuery queryOf(const FallbackRequest& request) {
    if (request.isEmoji) return {"emoji", "und-zsye", {}, true};
    return {std::string(request.generic), request.language, request.style, false};
}

}  // namespace

FallbackList::FallbackList(FcConfig& configuration, const FallbackRequest& request) {
    const auto pattern = fontPattern(configuration, queryOf(request));
    FcResult result = FcResultMatch;
    fonts_.reset(fontconfig().FontSort(&configuration, pattern.get(), FcFalse, nullptr, &result));
    if (fonts_ == nullptr) return;
    if (!request.isEmoji) addFonts(false);
    addFonts(true);  // a plain sign is drawn in colour only where no other font has it
}

void FallbackList::addFonts(bool colored) {
    for (int i = 0; i < fonts_->nfont; ++i) {
        const FcPattern& font = *fonts_->fonts[i];
        if (fontFlag(font, FC_COLOR) == colored && isUsable(font)) addCoverage(static_cast<std::uint32_t>(i));
    }
}

void FallbackList::addCoverage(std::uint32_t font) {
    const FcCharSet* const set = charactersOf(*fonts_->fonts[font]);
    if (set == nullptr) return;
    const Fontconfig& fc = fontconfig();
    FcChar32 map[FC_CHARSET_MAP_SIZE];
    FcChar32 next = 0;
    for (FcChar32 base = fc.CharSetFirstPage(set, map, &next); base != FC_CHARSET_DONE;
         base = fc.CharSetNextPage(set, map, &next)) {
        fontsOfBlock_[blockOf(base)].push_back(font);
    }
}

FontFace* FallbackList::find(std::u32string_view characters, FaceStore& faces) const {
    const auto block = fontsOfBlock_.find(blockOf(characters.front()));
    if (block == fontsOfBlock_.end()) return nullptr;
    for (const std::uint32_t i : block->second) {
        const FcPattern& font = *fonts_->fonts[i];
        if (!hasAll(font, characters)) continue;
        FontFace* const face = faces.open(font);
        if (face != nullptr && showsCluster(*face, characters)) return face;
    }
    return nullptr;
}

}  // namespace VEXA
