#pragma once

#include <fribidi.h>

namespace VEXA {

// What is called of FriBidi, without the prefix fribidi_.
#define VEXA_FRIBIDI_FUNCTIONS(X) X(get_bidi_types) X(get_bracket_types) X(get_par_embedding_levels_ex)

/// The library's functions, which are bound when one is first needed.
struct FriBidi {
    FriBidi();

#define VEXA_MEMBER(name) decltype(&::fribidi_##name) name = nullptr;
    VEXA_FRIBIDI_FUNCTIONS(VEXA_MEMBER)
#undef VEXA_MEMBER
};

/// Loads the library on first use. Throws Exception 1007 when it is not installed.
const FriBidi& friBidi();

}  // namespace VEXA
