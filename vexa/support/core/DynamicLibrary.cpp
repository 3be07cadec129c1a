#include "vexa/support/core/DynamicLibrary.h"

#include <dlfcn.h>

#include "vexa/support/core/Exception.h"

namespace VEXA {

namespace {

void* load(const char* soname) noexcept { return dlopen(soname, RTLD_LAZY | RTLD_LOCAL); }

/// What the dynamic loader says of the last failure on this thread.
std::string reasonOfLoader() {
    const char* reason = dlerror();
    return reason == nullptr ? "no reason is given" : reason;
}

}  // namespace

DynamicLibrary::DynamicLibrary(const char* soname, const char* package)
    : handle_(load(soname)), soname_(soname), package_(package) {
    if (handle_ == nullptr) {
        raise(Exception(1007, {String(soname), String(reasonOfLoader()), String(package)}), "DynamicLibrary", __LINE__);
    }
}

bool DynamicLibrary::isInstalled(const char* soname) noexcept { return load(soname) != nullptr; }

void* DynamicLibrary::find(const char* function) const {
    void* address = dlsym(handle_, function);
    if (address == nullptr) {
        raise(Exception(1008, {String(soname_), String(function), String(package_)}), "DynamicLibrary", __LINE__);
    }
    return address;
}

}  // namespace VEXA
