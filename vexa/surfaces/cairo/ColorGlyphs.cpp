#include "vexa/surfaces/cairo/ColorGlyphs.h"

#include <algorithm>
#include <cmath>

namespace VEXA {

namespace {

constexpr std::size_t kMostPictures = 256;  // of about 70 KB
constexpr int kDrawnSize = 128;             // pixels to the em for colours that are drawn and not stored

/// Sets the largest of the sizes that a font has pictures for, or one of our own; gives its pixels to the em.
double selectSize(FT_Face face) {
    int largest = -1;
    for (int i = 0; i < face->num_fixed_sizes; ++i) {
        if (largest < 0 || face->available_sizes[i].y_ppem > face->available_sizes[largest].y_ppem) largest = i;
    }
    if (largest >= 0 && freeType().Select_Size(face, largest) == 0) {
        return static_cast<double>(face->available_sizes[largest].y_ppem) / 64;
    }
    freeType().Set_Pixel_Sizes(face, 0, kDrawnSize);
    return kDrawnSize;
}

/// Whether a picture is on a page, and of a size that cairo can scale it to.
bool canBeSeen(const cairo_matrix_t& m) noexcept {
    constexpr double kFar = 1e6;
    constexpr double kFaint = 1.0 / 256;
    constexpr double kHuge = 1e3;
    const double enlargement = enlargementOf(m);
    const bool isNear = std::abs(m.x0) <= kFar && std::abs(m.y0) <= kFar;
    return isNear && enlargement >= kFaint && enlargement <= kHuge && isInvertible(m);
}

/// FreeType's bytes blue, green, red, alpha, multiplied with alpha, are cairo's pixels on every machine but big-endian
/// ones, where they are turned.
CairoPtr<cairo_surface_t> imageOf(const FT_Bitmap& bitmap) {
    const auto width = static_cast<int>(bitmap.width);
    const auto height = static_cast<int>(bitmap.rows);
    CairoPtr<cairo_surface_t> image(cairo().image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    unsigned char* const data = cairo().image_surface_get_data(image.get());
    if (data == nullptr) return {};
    const int stride = cairo().image_surface_get_stride(image.get());
    for (int y = 0; y < height; ++y) {
        const unsigned char* from = bitmap.buffer + std::ptrdiff_t{y} * bitmap.pitch;
        auto* to = reinterpret_cast<std::uint32_t*>(data + std::ptrdiff_t{y} * stride);
        for (int x = 0; x < width; ++x, from += 4) {
            *to++ =
                from[0] | std::uint32_t{from[1]} << 8U | std::uint32_t{from[2]} << 16U | std::uint32_t{from[3]} << 24U;
        }
    }
    cairo().surface_mark_dirty(image.get());
    return image;
}

}  // namespace

bool ColorGlyphs::paint(cairo_t* context, FT_Face face, const SmartPtr<FontFace>& font, const cairo_glyph_t& glyph,
                        double fontSize, const cairo_matrix_t& matrix, double opacity) {
    const Picture& picture = pictureOf(face, font, glyph.index);
    if (picture.pixels == nullptr) return false;
    const double unit = fontSize / picture.pixelsPerEm;
    const cairo_matrix_t place{unit, 0, 0, unit, glyph.x + picture.left * unit, glyph.y - picture.top * unit};
    cairo_matrix_t all;
    const CairoLibrary& library = cairo();
    library.matrix_multiply(&all, &place, &matrix);
    if (!canBeSeen(all)) return true;
    library.save(context);
    if (inGroups_) library.push_group(context);
    library.set_matrix(context, &all);
    library.set_source_surface(context, picture.pixels.get(), 0, 0);
    library.pattern_set_filter(library.get_source(context), CAIRO_FILTER_GOOD);
    library.paint_with_alpha(context, opacity);
    if (inGroups_) {
        library.pop_group_to_source(context);
        library.paint(context);
    }
    library.restore(context);
    return true;
}

const ColorGlyphs::Picture& ColorGlyphs::pictureOf(FT_Face face, const SmartPtr<FontFace>& font, unsigned long glyph) {
    const auto found = pictures_.find({font.get(), glyph});
    if (found != pictures_.end()) return found->second;
    if (pictures_.size() >= kMostPictures) pictures_.clear();
    if (std::find(fonts_.begin(), fonts_.end(), font) == fonts_.end()) fonts_.push_back(font);
    return pictures_.emplace(Key{font.get(), glyph}, load(face, glyph)).first->second;
}

ColorGlyphs::Picture ColorGlyphs::load(FT_Face face, unsigned long glyph) {
    Picture picture;
    picture.pixelsPerEm = selectSize(face);
    const auto index = static_cast<FT_UInt>(glyph);
    if (freeType().Load_Glyph(face, index, FT_LOAD_COLOR | FT_LOAD_RENDER | FT_LOAD_NO_HINTING) != 0) return picture;
    if (face->glyph->bitmap.pixel_mode != FT_PIXEL_MODE_BGRA) return picture;
    picture.pixels = imageOf(face->glyph->bitmap);
    picture.left = face->glyph->bitmap_left;
    picture.top = face->glyph->bitmap_top;
    return picture;
}

}  // namespace VEXA
