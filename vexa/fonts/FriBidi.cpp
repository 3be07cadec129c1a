#include "vexa/fonts/FriBidi.h"

#include "vexa/support/core/DynamicLibrary.h"

namespace VEXA {

FriBidi::FriBidi() {
    const DynamicLibrary library("libfribidi.so.0", "libfribidi0");
#define VEXA_BIND(name) library.bind(name, "fribidi_" #name);
    VEXA_FRIBIDI_FUNCTIONS(VEXA_BIND)
#undef VEXA_BIND
}

const FriBidi& friBidi() {
    static const FriBidi functions;
    return functions;
}

}  // namespace VEXA
