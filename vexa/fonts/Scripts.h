#pragma once

#include <hb.h>

#include <string_view>

namespace VEXA {

/// Languages that tell which fonts and letter forms a text wants, in lower case as fontconfig writes them. "und" says
/// nothing.
inline constexpr const char* kNoLanguage = "und";

/// Chinese characters look different in Japan, Korea, Taiwan and China. The letters that stand around them in a text
/// tell where they are read: "ja", "ko", "zh-tw", else "zh-cn".
const char* languageOfHan(std::u32string_view text) noexcept;

/// A language that is written in the script; `ofHan` for Chinese characters. Lives as long as the program.
const char* languageOf(hb_script_t script, const char* ofHan) noexcept;

/// Whether the letter forms of the script depend on the language.
bool hasRegionalForms(hb_script_t script) noexcept;

}  // namespace VEXA
