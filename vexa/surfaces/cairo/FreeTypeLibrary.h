#pragma once

// clang-format off
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H
// clang-format on

#include "vexa/fonts/FontFace.h"

namespace VEXA {

// clang-format off
#define VEXA_FREETYPE_FUNCTIONS(X) \
    X(Done_Face) X(Init_FreeType) X(Load_Glyph) X(New_Memory_Face) X(Outline_Decompose) \
    X(Outline_Get_CBox) X(Outline_Render) X(Select_Size) X(Set_Pixel_Sizes)
// clang-format on

/// The functions of FreeType that surfaces use, under their names without `FT_`, and the one object that FreeType wants
/// for all. Its faces may be used by several threads, each by one at a time.
struct FreeTypeLibrary {
#define VEXA_MEMBER(name) decltype(&::FT_##name) name = nullptr;
    VEXA_FREETYPE_FUNCTIONS(VEXA_MEMBER)
#undef VEXA_MEMBER
    FT_Library handle = nullptr;

    /// A face over the bytes of the other, which must live as long. Throws Exception 35004 when FreeType cannot read
    /// them. From any thread.
    FT_Face open(const FontFace& face) const;
    void close(FT_Face face) const noexcept;
};

/// Loads FreeType with the first call. Throws Exception 1007 and 1008 when it is not there or too old.
const FreeTypeLibrary& freeType();

}  // namespace VEXA
