#pragma once

#include <hb-ot.h>
#include <hb.h>

#include <memory>
#include <new>

namespace VEXA {

// What is called of HarfBuzz, without the prefix hb_.
#define VEXA_HARFBUZZ_FUNCTIONS(X)  \
    X(blob_create)                  \
    X(blob_destroy)                 \
    X(blob_get_data)                \
    X(blob_get_empty)               \
    X(buffer_add_codepoints)        \
    X(buffer_allocation_successful) \
    X(buffer_clear_contents)        \
    X(buffer_create)                \
    X(buffer_destroy)               \
    X(buffer_get_empty)             \
    X(buffer_get_glyph_infos)       \
    X(buffer_get_glyph_positions)   \
    X(buffer_set_direction)         \
    X(buffer_set_language)          \
    X(buffer_set_script)            \
    X(face_count)                   \
    X(face_create)                  \
    X(face_destroy)                 \
    X(face_get_empty)               \
    X(face_get_glyph_count)         \
    X(face_get_upem)                \
    X(face_make_immutable)          \
    X(face_reference_table)         \
    X(font_create)                  \
    X(font_destroy)                 \
    X(font_get_empty)               \
    X(font_get_nominal_glyph)       \
    X(font_make_immutable)          \
    X(font_set_var_named_instance)  \
    X(language_from_string)         \
    X(shape_full)                   \
    X(unicode_compose)              \
    X(unicode_decompose)            \
    X(unicode_funcs_get_default)    \
    X(unicode_general_category)     \
    X(unicode_script)

/// The library's functions, which are bound when one is first needed.
struct HarfBuzz {
    HarfBuzz();

#define VEXA_MEMBER(name) decltype(&::hb_##name) name = nullptr;
    VEXA_HARFBUZZ_FUNCTIONS(VEXA_MEMBER)
#undef VEXA_MEMBER
};

/// Loads the library on first use. Throws Exception 1007 when it is not installed.
const HarfBuzz& harfBuzz();

/// Gives objects of the library back to it.
struct HarfBuzzDeleter {
    void operator()(hb_blob_t* blob) const { harfBuzz().blob_destroy(blob); }
    void operator()(hb_face_t* face) const { harfBuzz().face_destroy(face); }
    void operator()(hb_font_t* font) const { harfBuzz().font_destroy(font); }
    void operator()(hb_buffer_t* buffer) const { harfBuzz().buffer_destroy(buffer); }
};
template <class T>
using HarfBuzzPtr = std::unique_ptr<T, HarfBuzzDeleter>;

/// Takes an object that was asked for. Where memory runs out the library makes its empty one of it, which nothing can
/// be done with: that is std::bad_alloc.
template <class T>
HarfBuzzPtr<T> takeCreated(T* object, const T* empty) {
    HarfBuzzPtr<T> owner(object);
    if (object == empty) throw std::bad_alloc();
    return owner;
}

}  // namespace VEXA
