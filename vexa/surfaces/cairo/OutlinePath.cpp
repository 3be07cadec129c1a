#include "vexa/surfaces/cairo/OutlinePath.h"

namespace VEXA {

namespace {

/// Where an outline stands while it becomes a path.
struct OutlineWriter {
    cairo_t* context;
    const cairo_matrix_t& matrix;
    DevicePoint pen{};
    bool isOpen = false;

    DevicePoint place(const FT_Vector* v) const noexcept {
        return toDevice(matrix, {static_cast<float>(v->x), static_cast<float>(v->y)});
    }
    void curve(const DevicePoint& a, const DevicePoint& b, const DevicePoint& end) {
        cairo().curve_to(context, a.x, a.y, b.x, b.y, end.x, end.y);
        pen = end;
    }
    void close() {
        if (isOpen) cairo().close_path(context);
        isOpen = true;
    }
};

OutlineWriter& writerOf(void* user) { return *static_cast<OutlineWriter*>(user); }

int moveTo(const FT_Vector* to, void* user) {
    OutlineWriter& writer = writerOf(user);
    writer.close();
    writer.pen = writer.place(to);
    cairo().move_to(writer.context, writer.pen.x, writer.pen.y);
    return 0;
}

int lineTo(const FT_Vector* to, void* user) {
    OutlineWriter& writer = writerOf(user);
    writer.pen = writer.place(to);
    cairo().line_to(writer.context, writer.pen.x, writer.pen.y);
    return 0;
}

/// A quadratic curve as a cubic one: its handles reach two thirds of the way to the quadratic's.
int conicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
    OutlineWriter& writer = writerOf(user);
    const DevicePoint middle = writer.place(control);
    const DevicePoint end = writer.place(to);
    const auto handle = [&](const DevicePoint& from) {
        return DevicePoint{from.x + (middle.x - from.x) * 2 / 3, from.y + (middle.y - from.y) * 2 / 3, true};
    };
    writer.curve(handle(writer.pen), handle(end), end);
    return 0;
}

int cubicTo(const FT_Vector* first, const FT_Vector* second, const FT_Vector* to, void* user) {
    OutlineWriter& writer = writerOf(user);
    writer.curve(writer.place(first), writer.place(second), writer.place(to));
    return 0;
}

}  // namespace

cairo_matrix_t glyphMatrix(FT_Face face, const cairo_glyph_t& glyph, double fontSize, const cairo_matrix_t& matrix) {
    const double unit = fontSize / face->units_per_EM;
    const cairo_matrix_t inUserSpace{unit, 0, 0, -unit, glyph.x, glyph.y};
    cairo_matrix_t result;
    cairo().matrix_multiply(&result, &inUserSpace, &matrix);
    return result;
}

const FT_Outline* outlineOf(FT_Face face, unsigned long glyph) {
    const bool isOutline = freeType().Load_Glyph(face, static_cast<FT_UInt>(glyph), FT_LOAD_NO_SCALE) == 0 &&
                           face->glyph->format == FT_GLYPH_FORMAT_OUTLINE;
    return isOutline && face->glyph->outline.n_contours > 0 ? &face->glyph->outline : nullptr;
}

void fillOutline(cairo_t* context, const FT_Outline& outline, const cairo_matrix_t& matrix) {
    static constexpr FT_Outline_Funcs kWriter{moveTo, lineTo, conicTo, cubicTo, 0, 0};
    cairo().new_path(context);
    OutlineWriter writer{context, matrix};
    FT_Outline decomposed = outline;
    freeType().Outline_Decompose(&decomposed, &kWriter, &writer);
    writer.close();
    cairo().set_fill_rule(context, CAIRO_FILL_RULE_WINDING);
    cairo().fill(context);
    cairo().set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
}

}  // namespace VEXA
