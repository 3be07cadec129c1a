#pragma once

#include <compare>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "vexa/fonts/FaceStore.h"

namespace VEXA {

/// What else a font should be that is looked for by its characters.
struct FallbackRequest {
    FontStyleRequest style;
    std::string_view generic = "sans-serif";  ///< keyword of a generic family
    const char* language = "und";             ///< lives as long as the program
    bool isEmoji = false;                     ///< only fonts in colour; the rest plays no part then

    friend bool operator==(const FallbackRequest& a, const FallbackRequest& b) noexcept {
        return a.style == b.style && a.generic == b.generic && std::string_view(a.language) == b.language &&
               a.isEmoji == b.isEmoji;
    }
};

/// All fonts of a configuration in the order in which they should be tried for one request. Which font shows a
/// character depends on that order alone, never on what was asked before.
class FallbackList {
public:
    FallbackList(FcConfig& configuration, const FallbackRequest& request);

    /// The first face that has all of the characters; null when none has. REQUIRES: at least one character.
    FontFace* find(std::u32string_view characters, FaceStore& faces) const;

private:
    using Fonts = std::vector<std::uint32_t>;

    void addFonts(bool colored);
    void addCoverage(std::uint32_t font);

    FontconfigPtr<FcFontSet> fonts_;
    std::unordered_map<char32_t, Fonts> fontsOfBlock_;  // by the upper bits of a character, the best first
};

}  // namespace VEXA
