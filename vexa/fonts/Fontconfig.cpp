#include "vexa/fonts/Fontconfig.h"

#include "vexa/support/core/DynamicLibrary.h"

namespace VEXA {

namespace {

constexpr char kSoname[] = "libfontconfig.so.1";

}  // namespace

Fontconfig::Fontconfig() {
    const DynamicLibrary library(kSoname, "libfontconfig1");
#define VEXA_BIND(name) library.bind(name, "Fc" #name);
    VEXA_FONTCONFIG_FUNCTIONS(VEXA_BIND)
#undef VEXA_BIND
}

const Fontconfig& fontconfig() {
    static const Fontconfig functions;
    return functions;
}

bool hasFontconfig() noexcept {
    static const bool isInstalled = DynamicLibrary::isInstalled(kSoname);
    return isInstalled;
}

}  // namespace VEXA
