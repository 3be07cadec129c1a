#include "vexa/surfaces/cairo/PngLibrary.h"

#include "vexa/support/core/DynamicLibrary.h"

namespace VEXA {

namespace {

PngLibrary loadPng() {
    const DynamicLibrary library("libpng16.so.16", "libpng16-16");
    PngLibrary functions;
#define VEXA_BIND(name) library.bind(functions.name, "png_" #name);
    VEXA_PNG_FUNCTIONS(VEXA_BIND)
#undef VEXA_BIND
    return functions;
}

}  // namespace

const PngLibrary& pngLibrary() {
    static const PngLibrary library = loadPng();
    return library;
}

}  // namespace VEXA
