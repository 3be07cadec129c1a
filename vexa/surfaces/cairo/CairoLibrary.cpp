#include "vexa/surfaces/cairo/CairoLibrary.h"

#include "vexa/support/core/DynamicLibrary.h"
#include "vexa/support/core/Exception.h"

namespace VEXA {

namespace {

CairoLibrary loadCairo() {
    const DynamicLibrary library("libcairo.so.2", "libcairo2");
    CairoLibrary functions;
#define VEXA_BIND(name) library.bind(functions.name, "cairo_" #name);
    VEXA_CAIRO_FUNCTIONS(VEXA_BIND)
#undef VEXA_BIND
    return functions;
}

}  // namespace

const CairoLibrary& cairo() {
    static const CairoLibrary library = loadCairo();
    return library;
}

void requireSuccess(cairo_status_t status) {
    if (status == CAIRO_STATUS_SUCCESS) return;
    raise(Exception(35003, {String(cairo().status_to_string(status))}), "CairoSurface", __LINE__);
}

}  // namespace VEXA
