#pragma once

#include <fontconfig/fontconfig.h>

#include <memory>

namespace VEXA {

// What is called of fontconfig, without the prefix Fc.
#define VEXA_FONTCONFIG_FUNCTIONS(X) \
    X(CharSetFirstPage)              \
    X(CharSetHasChar)                \
    X(CharSetNextPage)               \
    X(ConfigAppFontAddFile)          \
    X(ConfigBuildFonts)              \
    X(ConfigCreate)                  \
    X(ConfigDestroy)                 \
    X(ConfigGetConfigFiles)          \
    X(ConfigGetFonts)                \
    X(ConfigParseAndLoad)            \
    X(ConfigSubstitute)              \
    X(DefaultSubstitute)             \
    X(FontMatch)                     \
    X(FontSetSortDestroy)            \
    X(FontSort)                      \
    X(PatternAddBool)                \
    X(PatternAddInteger)             \
    X(PatternAddString)              \
    X(PatternCreate)                 \
    X(PatternDestroy)                \
    X(PatternGetBool)                \
    X(PatternGetCharSet)             \
    X(PatternGetInteger)             \
    X(PatternGetString)              \
    X(StrListDone)                   \
    X(StrListNext)

/// The library's functions, which are bound when one is first needed.
struct Fontconfig {
    Fontconfig();

#define VEXA_MEMBER(name) decltype(&::Fc##name) name = nullptr;
    VEXA_FONTCONFIG_FUNCTIONS(VEXA_MEMBER)
#undef VEXA_MEMBER
};

/// Loads the library on first use. Throws Exception 1007 when it is not installed.
const Fontconfig& fontconfig();
bool hasFontconfig() noexcept;

/// Gives objects of the library back to it.
struct FontconfigDeleter {
    void operator()(FcConfig* config) const { fontconfig().ConfigDestroy(config); }
    void operator()(FcFontSet* sorted) const { fontconfig().FontSetSortDestroy(sorted); }
    void operator()(FcPattern* pattern) const { fontconfig().PatternDestroy(pattern); }
    void operator()(FcStrList* list) const { fontconfig().StrListDone(list); }
};
template <class T>
using FontconfigPtr = std::unique_ptr<T, FontconfigDeleter>;

}  // namespace VEXA
