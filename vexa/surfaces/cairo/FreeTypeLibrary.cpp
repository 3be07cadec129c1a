#include "vexa/surfaces/cairo/FreeTypeLibrary.h"

#include <mutex>

#include "vexa/support/core/DynamicLibrary.h"
#include "vexa/support/core/Exception.h"

namespace VEXA {

namespace {

/// FreeType keeps a list of its faces. Never destroyed: cairo lets go of its last faces when the program ends.
std::mutex& facesMutex() {
    static std::mutex* const mutex = new std::mutex;
    return *mutex;
}

FreeTypeLibrary loadFreeType() {
    const DynamicLibrary library("libfreetype.so.6", "libfreetype6");
    FreeTypeLibrary functions;
#define VEXA_BIND(name) library.bind(functions.name, "FT_" #name);
    VEXA_FREETYPE_FUNCTIONS(VEXA_BIND)
#undef VEXA_BIND
    if (functions.Init_FreeType(&functions.handle) != 0) throw std::bad_alloc();
    return functions;
}

}  // namespace

FT_Face FreeTypeLibrary::open(const FontFace& face) const {
    const auto bytes = face.data()->bytes();
    const std::lock_guard lock(facesMutex());
    FT_Face opened = nullptr;
    const FT_Error error = New_Memory_Face(handle, reinterpret_cast<const FT_Byte*>(bytes.data()),
                                           static_cast<FT_Long>(bytes.size()), face.index(), &opened);
    if (error != 0) raise(Exception(35004, {String(face.name())}), "FreeTypeLibrary", __LINE__);
    return opened;
}

void FreeTypeLibrary::close(FT_Face face) const noexcept {
    const std::lock_guard lock(facesMutex());
    Done_Face(face);
}

const FreeTypeLibrary& freeType() {
    static const FreeTypeLibrary library = loadFreeType();
    return library;
}

}  // namespace VEXA
