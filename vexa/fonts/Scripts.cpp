#include "vexa/fonts/Scripts.h"

#include <algorithm>
#include <iterator>

namespace VEXA {

namespace {

struct ScriptLanguage {
    hb_script_t script;
    const char* language;
};

/// Fonts are marked with the languages that they are made for; the most spoken one stands for a script.
constexpr ScriptLanguage kLanguages[] = {
    {HB_SCRIPT_ARABIC, "ar"},       {HB_SCRIPT_ARMENIAN, "hy"},  {HB_SCRIPT_BENGALI, "bn"},
    {HB_SCRIPT_BOPOMOFO, "zh-tw"},  {HB_SCRIPT_CHEROKEE, "chr"}, {HB_SCRIPT_CYRILLIC, "ru"},
    {HB_SCRIPT_DEVANAGARI, "hi"},   {HB_SCRIPT_ETHIOPIC, "am"},  {HB_SCRIPT_GEORGIAN, "ka"},
    {HB_SCRIPT_GREEK, "el"},        {HB_SCRIPT_GUJARATI, "gu"},  {HB_SCRIPT_GURMUKHI, "pa"},
    {HB_SCRIPT_HANGUL, "ko"},       {HB_SCRIPT_HEBREW, "he"},    {HB_SCRIPT_HIRAGANA, "ja"},
    {HB_SCRIPT_KANNADA, "kn"},      {HB_SCRIPT_KATAKANA, "ja"},  {HB_SCRIPT_KHMER, "km"},
    {HB_SCRIPT_LAO, "lo"},          {HB_SCRIPT_LATIN, "en"},     {HB_SCRIPT_MALAYALAM, "ml"},
    {HB_SCRIPT_MONGOLIAN, "mn-cn"}, {HB_SCRIPT_MYANMAR, "my"},   {HB_SCRIPT_NKO, "nqo"},
    {HB_SCRIPT_ORIYA, "or"},        {HB_SCRIPT_SINHALA, "si"},   {HB_SCRIPT_SYRIAC, "syr"},
    {HB_SCRIPT_TAMIL, "ta"},        {HB_SCRIPT_TELUGU, "te"},    {HB_SCRIPT_THAANA, "dv"},
    {HB_SCRIPT_THAI, "th"},         {HB_SCRIPT_TIBETAN, "bo"},   {HB_SCRIPT_YI, "ii"},
};

constexpr bool isKana(char32_t c) noexcept { return (c >= 0x3041 && c <= 0x30FF) || (c >= 0xFF66 && c <= 0xFF9D); }

constexpr bool isHangul(char32_t c) noexcept {
    return (c >= 0xAC00 && c <= 0xD7A3) || (c >= 0x1100 && c <= 0x11FF) || (c >= 0x3131 && c <= 0x318E);
}

constexpr bool isBopomofo(char32_t c) noexcept { return (c >= 0x3105 && c <= 0x312F) || (c >= 0x31A0 && c <= 0x31BF); }

}  // namespace

const char* languageOfHan(std::u32string_view text) noexcept {
    for (const char32_t c : text) {
        if (isKana(c)) return "ja";
        if (isHangul(c)) return "ko";
        if (isBopomofo(c)) return "zh-tw";
    }
    return "zh-cn";
}

const char* languageOf(hb_script_t script, const char* ofHan) noexcept {
    if (script == HB_SCRIPT_HAN) return ofHan;
    const auto* const found = std::find_if(std::begin(kLanguages), std::end(kLanguages),
                                           [script](const ScriptLanguage& each) { return each.script == script; });
    return found == std::end(kLanguages) ? kNoLanguage : found->language;
}

bool hasRegionalForms(hb_script_t script) noexcept {
    return script == HB_SCRIPT_HAN || script == HB_SCRIPT_HIRAGANA || script == HB_SCRIPT_KATAKANA ||
           script == HB_SCRIPT_HANGUL || script == HB_SCRIPT_BOPOMOFO;
}

}  // namespace VEXA
