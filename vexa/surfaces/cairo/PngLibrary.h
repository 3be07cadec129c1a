#pragma once

#include <png.h>

namespace VEXA {

// clang-format off
#define VEXA_PNG_FUNCTIONS(X) \
    X(create_info_struct) X(create_write_struct) X(destroy_write_struct) X(error) X(get_error_ptr) X(get_io_ptr) \
    X(longjmp) X(set_IHDR) X(set_compression_level) X(set_filter) X(set_longjmp_fn) X(set_pHYs) X(set_write_fn) \
    X(write_end) X(write_info) X(write_row)
// clang-format on

/// The functions of libpng that pictures are written with, under their names without `png_`.
struct PngLibrary {
#define VEXA_MEMBER(name) decltype(&::png_##name) name = nullptr;
    VEXA_PNG_FUNCTIONS(VEXA_MEMBER)
#undef VEXA_MEMBER
};

/// Loads libpng with the first call. Throws Exception 1007 and 1008 when it is not there or too old.
const PngLibrary& pngLibrary();

}  // namespace VEXA
