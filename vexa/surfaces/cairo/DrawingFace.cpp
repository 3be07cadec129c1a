#include "vexa/surfaces/cairo/DrawingFace.h"

namespace VEXA {

namespace {

/// What cairo's caches may still use when the font is gone.
struct CairoOwned {
    SmartPtr<FontData> data;
    FT_Face face;
};

void freeOwned(void* owned) {
    const std::unique_ptr<CairoOwned> ending(static_cast<CairoOwned*>(owned));
    freeType().close(ending->face);
}

}  // namespace

std::shared_ptr<DrawingFace> DrawingFace::of(const FontFace& font) {
    return std::static_pointer_cast<DrawingFace>(
        font.drawingFace([&font]() -> std::shared_ptr<void> { return std::make_shared<DrawingFace>(font); }));
}

DrawingFace::~DrawingFace() {
    for (const FT_Face face : idle_) freeType().close(face);
}

FT_Face DrawingFace::borrow() {
    {
        const std::lock_guard lock(mutex_);
        if (!idle_.empty()) {
            const FT_Face face = idle_.back();
            idle_.pop_back();
            return face;
        }
        idle_.reserve(++opened_);  // so that giving back never fails
    }
    return freeType().open(font_);
}

void DrawingFace::giveBack(FT_Face face) noexcept {
    const std::lock_guard lock(mutex_);
    idle_.push_back(face);
}

cairo_font_face_t* DrawingFace::cairoFace() {
    const std::lock_guard lock(mutex_);
    if (cairoFace_ != nullptr) return cairoFace_.get();
    static const cairo_user_data_key_t kOwned{};
    auto owned = std::make_unique<CairoOwned>(CairoOwned{font_.data(), nullptr});
    owned->face = freeType().open(font_);
    CairoPtr<cairo_font_face_t> made(cairo().ft_font_face_create_for_ft_face(owned->face, FT_LOAD_DEFAULT));
    const cairo_status_t status = cairo().font_face_set_user_data(made.get(), &kOwned, owned.get(), freeOwned);
    if (status != CAIRO_STATUS_SUCCESS) freeType().close(owned->face);
    requireSuccess(status);
    owned.release();
    cairoFace_ = std::move(made);
    return cairoFace_.get();
}

}  // namespace VEXA
