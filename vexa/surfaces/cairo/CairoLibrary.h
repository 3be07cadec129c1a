#pragma once

#include <cairo-ft.h>
#include <cairo-pdf.h>
#include <cairo.h>

#include <memory>

namespace VEXA {

// clang-format off
#define VEXA_CAIRO_FUNCTIONS(X) \
    X(clip) X(close_path) X(create) X(curve_to) X(destroy) X(fill) X(fill_preserve) X(font_face_destroy) \
    X(font_face_set_user_data) X(font_options_create) X(font_options_destroy) X(font_options_set_hint_metrics) \
    X(font_options_set_hint_style) X(ft_font_face_create_for_ft_face) X(get_source) X(image_surface_create) \
    X(image_surface_create_for_data) X(image_surface_get_data) X(image_surface_get_stride) X(line_to) X(mask) \
    X(mask_surface) X(matrix_invert) X(matrix_multiply) X(move_to) X(new_path) X(paint) X(paint_with_alpha) \
    X(path_extents) X(pattern_add_color_stop_rgba) X(pattern_create_linear) X(pattern_create_radial) \
    X(pattern_destroy) X(pattern_set_extend) X(pattern_set_filter) X(pattern_set_matrix) \
    X(pdf_surface_create_for_stream) X(pdf_surface_set_metadata) X(pdf_surface_set_size) X(pop_group) \
    X(pop_group_to_source) X(push_group) X(push_group_with_content) X(restore) X(save) X(set_dash) X(set_fill_rule) \
    X(set_font_face) X(set_font_matrix) X(set_font_options) X(set_line_cap) X(set_line_join) X(set_line_width) \
    X(set_matrix) X(set_miter_limit) X(set_operator) X(set_source) X(set_source_rgba) X(set_source_surface) \
    X(show_page) X(show_text_glyphs) X(status) X(status_to_string) X(stroke) X(surface_destroy) X(surface_finish) \
    X(surface_flush) X(surface_mark_dirty) X(surface_status)
// clang-format on

/// The functions of cairo that surfaces use, under their names without `cairo_`.
struct CairoLibrary {
#define VEXA_MEMBER(name) decltype(&::cairo_##name) name = nullptr;
    VEXA_CAIRO_FUNCTIONS(VEXA_MEMBER)
#undef VEXA_MEMBER
};

/// Loads cairo with the first call. Throws Exception 1007 and 1008 when it is not there or too old.
const CairoLibrary& cairo();

struct CairoDeleter {
    void operator()(cairo_t* context) const noexcept { cairo().destroy(context); }
    void operator()(cairo_surface_t* surface) const noexcept { cairo().surface_destroy(surface); }
    void operator()(cairo_pattern_t* pattern) const noexcept { cairo().pattern_destroy(pattern); }
    void operator()(cairo_font_face_t* face) const noexcept { cairo().font_face_destroy(face); }
    void operator()(cairo_font_options_t* options) const noexcept { cairo().font_options_destroy(options); }
};

/// An object of cairo with one owner.
template <class T>
using CairoPtr = std::unique_ptr<T, CairoDeleter>;

/// Throws Exception 35003 with cairo's own words when the status is a failure.
void requireSuccess(cairo_status_t status);

}  // namespace VEXA
