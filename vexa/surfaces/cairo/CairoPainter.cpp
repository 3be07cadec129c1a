#include "vexa/surfaces/cairo/CairoPainter.h"

#include <cmath>
#include <utility>

#include "vexa/support/core/Exception.h"

namespace VEXA {

void CairoPainter::begin(const CairoCanvas& canvas) {
    context_ = canvas.context;
    scale_ = canvas.scale;
    glyphs_ = canvas.glyphs;
    record_ = canvas.record;
    pixels_ = canvas.pixels;
    clips_.clear();
    dashes_.renew();
    cairo().set_fill_rule(context_, CAIRO_FILL_RULE_EVEN_ODD);
}

void CairoPainter::end() {
    clips_.leaveAll(context_);
    requireSuccess(cairo().status(std::exchange(context_, nullptr)));
}

void CairoPainter::drop() noexcept {
    context_ = nullptr;
    clips_.clear();
}

void CairoPainter::requirePage() const {
    if (hasPage()) return;
    raise(UnreacheableCodeException("drawing outside a page; begin one first"), "CairoSurface", __LINE__);
}

void CairoPainter::shape(const DrawingState& state, const Path& path) {
    Paint inside = resolvePaint(state.fill.get());
    Paint outline = resolvePaint(state.stroke.get());
    if (path.isEmpty() || !(inside.paints() || outline.paints())) return;
    if (record_ != nullptr) {
        record_->addShape(path, inside);
        record_->addShape(path, outline);
    }
    cairo_matrix_t matrix;
    if (!enter(state, matrix) || !makeCurrentPath(context_, path, matrix)) return;
    PathBox box;
    if (inside.dependsOnBox() || outline.dependsOnBox()) {
        box = boxOf(path);
        if (box.isFlat()) {
            inside = onFlatBox(inside);
            outline = onFlatBox(outline);
        }
    }
    if (pixels_ != nullptr) {
        const bool isStroked = outline.paints();
        countPixels(inside, outline, isStroked ? state.stroke->getThickness() * enlargementOf(matrix) : 0);
    }
    if (inside.paints()) {
        setSource(context_, inside, box, matrix);
        cairo().fill_preserve(context_);
    }
    if (outline.paints()) stroke(*state.stroke, outline, path, box, matrix);
}

void CairoPainter::text(const DrawingState& state, const String& text, PointF at, float spacing) {
    const Paint paint = resolvePaint(state.fill.get());
    cairo_matrix_t matrix;
    const bool hasPlace = std::isfinite(at.x) && std::isfinite(at.y);
    if (text.isEmpty() || !hasPlace || !state.font || !(state.font->getFontSize() > 0) || !paint.paints()) return;
    const PlacedText placed = placeText(text, state.font, at, spacing);
    if (!enter(state, matrix)) return;
    if (pixels_ != nullptr) pixels_->addText(placed.box, matrix);
    setSource(context_, placed.box.isFlat() ? onFlatBox(paint) : paint, placed.box, matrix);
    for (const PlacedRun& run : placed.runs) glyphs_->paint(context_, run, matrix, paint.opacity);
}

bool CairoPainter::enter(const DrawingState& state, cairo_matrix_t& matrix) {
    matrix = deviceMatrix(state.transform, scale_);
    if (!isDrawable(matrix)) return false;
    clips_.enter(context_, state.clip.get(), scale_);
    return true;
}

void CairoPainter::countPixels(const Paint& inside, const Paint& outline, double penWidth) {
    PathBox box;
    cairo().path_extents(context_, &box.left, &box.top, &box.right, &box.bottom);
    pixels_->addShape(box, inside);
    pixels_->addShape({box.left - penWidth, box.top - penWidth, box.right + penWidth, box.bottom + penWidth}, outline);
}

void CairoPainter::stroke(const Stroke& stroke, const Paint& paint, const Path& path, const PathBox& box,
                          const cairo_matrix_t& matrix) {
    static constexpr cairo_matrix_t kIdentity{1, 0, 0, 1, 0, 0};
    setSource(context_, paint, box, matrix);
    const StrokeStyle style(stroke, path, matrix, dashes_);
    if (pixels_ != nullptr && isLongPolyline(path)) {
        strokeInPieces(context_, style, path, matrix);
        return;
    }
    style.apply(context_);
    cairo().set_matrix(context_, &style.penMatrix());
    cairo().stroke(context_);
    cairo().set_matrix(context_, &kIdentity);
}

}  // namespace VEXA
