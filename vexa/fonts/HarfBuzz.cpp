#include "vexa/fonts/HarfBuzz.h"

#include "vexa/support/core/DynamicLibrary.h"

namespace VEXA {

HarfBuzz::HarfBuzz() {
    const DynamicLibrary library("libharfbuzz.so.0", "libharfbuzz0b");
#define VEXA_BIND(name) library.bind(name, "hb_" #name);
    VEXA_HARFBUZZ_FUNCTIONS(VEXA_BIND)
#undef VEXA_BIND
}

const HarfBuzz& harfBuzz() {
    static const HarfBuzz functions;
    return functions;
}

}  // namespace VEXA
