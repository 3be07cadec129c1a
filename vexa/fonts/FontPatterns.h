#pragma once

#include <string>

#include "vexa/fonts/FontFace.h"
#include "vexa/fonts/Fontconfig.h"

namespace VEXA {

/// What is asked of fontconfig.
struct FontQuery {
    std::string family;  ///< UTF-8; empty when any will do
    const char* language = "und";
    FontStyleRequest style;
    bool isColored = false;
};

/// The query with the rules of the configuration applied. The answer depends on nothing else: not on the locale.
FontconfigPtr<FcPattern> fontPattern(FcConfig& configuration, const FontQuery& query);

/// A property of a font, of its first value.
std::string fontText(const FcPattern& font, const char* property, int index = 0);
bool fontFlag(const FcPattern& font, const char* property);
int fontNumber(const FcPattern& font, const char* property);

/// Whether we can draw it: outlines or colours in a file of the OpenType family.
bool isUsable(const FcPattern& font);

/// A family's name as fontconfig compares it: without spaces, letters A to Z in lower case.
std::string comparableFamily(std::string_view utf8);

}  // namespace VEXA
