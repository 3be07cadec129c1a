#include "vexa/fonts/FontPatterns.h"

#include <cstring>

namespace VEXA {

namespace {

void add(FcPattern& pattern, const char* property, const char* text) {
    fontconfig().PatternAddString(&pattern, property, reinterpret_cast<const FcChar8*>(text));
}

}  // namespace

FontconfigPtr<FcPattern> fontPattern(FcConfig& configuration, const FontQuery& query) {
    const Fontconfig& fc = fontconfig();
    FontconfigPtr<FcPattern> pattern(fc.PatternCreate());
    if (!query.family.empty()) add(*pattern, FC_FAMILY, query.family.c_str());
    // "und" keeps fontconfig from adding the languages of the locale, for texts and for the names of fonts.
    add(*pattern, FC_LANG, query.language);
    if (std::strcmp(query.language, "und") != 0) add(*pattern, FC_LANG, "und");
    add(*pattern, FC_NAMELANG, "en");
    fc.PatternAddInteger(pattern.get(), FC_WEIGHT, query.style.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    fc.PatternAddInteger(pattern.get(), FC_SLANT, query.style.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    fc.PatternAddBool(pattern.get(), FC_COLOR, query.isColored ? FcTrue : FcFalse);
    fc.PatternAddBool(pattern.get(), FC_VARIABLE, FcFalse);  // their named instances are listed as well
    fc.ConfigSubstitute(&configuration, pattern.get(), FcMatchPattern);
    fc.DefaultSubstitute(pattern.get());
    return pattern;
}

std::string fontText(const FcPattern& font, const char* property, int index) {
    FcChar8* text = nullptr;
    const auto result = fontconfig().PatternGetString(&font, property, index, &text);
    return result == FcResultMatch ? reinterpret_cast<const char*>(text) : "";
}

bool fontFlag(const FcPattern& font, const char* property) {
    FcBool value = FcFalse;
    return fontconfig().PatternGetBool(&font, property, 0, &value) == FcResultMatch && value == FcTrue;
}

int fontNumber(const FcPattern& font, const char* property) {
    int value = 0;
    return fontconfig().PatternGetInteger(&font, property, 0, &value) == FcResultMatch ? value : 0;
}

bool isUsable(const FcPattern& font) {
    const std::string format = fontText(font, FC_FONTFORMAT);
    if (format != "TrueType" && format != "CFF") return false;
    return fontFlag(font, FC_OUTLINE) || fontFlag(font, FC_COLOR);
}

std::string comparableFamily(std::string_view utf8) {
    std::string result;
    result.reserve(utf8.size());
    for (const char c : utf8) {
        if (c != ' ') result.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c);
    }
    return result;
}

}  // namespace VEXA
