#include "vexa/fonts/FontFace.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <string_view>

#include "vexa/fonts/CompiledFonts.h"
#include "vexa/fonts/HarfBuzz.h"
#include "vexa/support/drawing/LiberationSansWidths.h"

namespace VEXA {

namespace {

constexpr unsigned kFaceBits = 0xFFFF;
constexpr unsigned kInstanceShift = 16;
constexpr unsigned kWholeVariableFont = 0x8000;  // fontconfig's instance for "all of them"

std::string_view tableBytes(hb_blob_t& blob) {
    unsigned length = 0;
    const char* const data = harfBuzz().blob_get_data(&blob, &length);
    return {data == nullptr ? "" : data, length};
}

/// Empty when there is none. The library has none, too, when memory runs out for a moment, so it is asked twice.
HarfBuzzPtr<hb_blob_t> tableOf(hb_face_t& face, hb_tag_t tag) {
    HarfBuzzPtr<hb_blob_t> table(harfBuzz().face_reference_table(&face, tag));
    if (tableBytes(*table).empty()) table.reset(harfBuzz().face_reference_table(&face, tag));
    return table;
}

bool hasTable(hb_face_t& face, hb_tag_t tag) { return !tableBytes(*tableOf(face, tag)).empty(); }

bool hasColors(hb_face_t& face) {
    static constexpr hb_tag_t kTags[] = {HB_TAG('C', 'O', 'L', 'R'), HB_TAG('C', 'B', 'D', 'T'),
                                         HB_TAG('s', 'b', 'i', 'x'), HB_TAG('S', 'V', 'G', ' ')};
    return std::any_of(std::begin(kTags), std::end(kTags), [&face](hb_tag_t tag) { return hasTable(face, tag); });
}

/// A signed 16-bit number in the byte order of fonts. REQUIRES: at + 2 <= table.size().
int numberAt(std::string_view table, std::size_t at) {
    const auto byte = [table](std::size_t i) { return static_cast<unsigned char>(table[i]); };
    return static_cast<std::int16_t>(byte(at) << 8U | byte(at + 1));
}

/// Ascent and descent of the table `hhea` (OpenType specification): the third and the fourth number, the descent below
/// zero. A font without the table sits on its baseline.
FontMetrics metricsOf(hb_face_t& face) {
    constexpr std::size_t kAscender = 4;
    constexpr std::size_t kDescender = 6;
    FontMetrics metrics{static_cast<int>(harfBuzz().face_get_upem(&face)), 0, 0};
    const auto blob = tableOf(face, HB_TAG('h', 'h', 'e', 'a'));
    const std::string_view table = tableBytes(*blob);
    if (table.size() < kDescender + 2) return {metrics.unitsPerEm, metrics.unitsPerEm, 0};
    metrics.ascent = std::max(numberAt(table, kAscender), 0);
    metrics.descent = std::max(-numberAt(table, kDescender), 0);
    return metrics;
}

HarfBuzzPtr<hb_face_t> faceOf(const FontData& data, unsigned index) {
    const auto bytes = data.bytes();
    if (bytes.empty() || bytes.size() > std::numeric_limits<unsigned>::max()) return nullptr;
    const HarfBuzz& hb = harfBuzz();
    const auto blob =
        takeCreated(hb.blob_create(reinterpret_cast<const char*>(bytes.data()), static_cast<unsigned>(bytes.size()),
                                   HB_MEMORY_MODE_READONLY, nullptr, nullptr),
                    hb.blob_get_empty());
    if ((index & kFaceBits) >= hb.face_count(blob.get())) return nullptr;
    return takeCreated(hb.face_create(blob.get(), index & kFaceBits), hb.face_get_empty());
}

}  // namespace

SmartPtr<FontFace> FontFace::open(SmartPtr<FontData> data, unsigned index, std::string name) {
    const auto face = faceOf(*data, index);
    if (face == nullptr || harfBuzz().face_get_glyph_count(face.get()) == 0) return nullptr;
    return SmartPtr<FontFace>(new FontFace(std::move(data), index, std::move(name), *face));
}

FontFace::FontFace(SmartPtr<FontData> data, unsigned index, std::string name, hb_face_t& face)
    : data_(std::move(data)),
      index_(index >> kInstanceShift & kWholeVariableFont ? index & kFaceBits : index),
      name_(std::move(name)),
      metrics_(metricsOf(face)),
      isColored_(hasColors(face)) {
    const HarfBuzz& hb = harfBuzz();
    hb.face_make_immutable(&face);
    font_ = takeCreated(hb.font_create(&face), hb.font_get_empty()).release();  // its scale is the units per em
    const unsigned instance = index_ >> kInstanceShift;
    if (instance > 0) hb.font_set_var_named_instance(font_, instance - 1);
    hb.font_make_immutable(font_);
}

FontFace::~FontFace() { harfBuzz().font_destroy(font_); }

bool FontFace::hasGlyph(char32_t character) const noexcept {
    hb_codepoint_t glyph = 0;
    return harfBuzz().font_get_nominal_glyph(font_, character, &glyph) != 0;
}

std::shared_ptr<void> FontFace::drawingFace(const std::function<std::shared_ptr<void>()>& make) const {
    const std::lock_guard lock(drawingMutex_);
    if (drawingFace_ == nullptr) drawingFace_ = make();
    return drawingFace_;
}

const SmartPtr<FontFace>& compiledFace(FontStyleRequest style) {
    static constexpr std::array kNames = {"Liberation Sans", "Liberation Sans Bold", "Liberation Sans Italic",
                                          "Liberation Sans Bold Italic"};
    using Faces = std::array<SmartPtr<FontFace>, kNames.size()>;
    static const Immortal<Faces> faces([] {
        Faces result;
        for (std::size_t i = 0; i < result.size(); ++i) {
            result[i] = FontFace::open(make<FontData>(compiledFont(i % 2 == 1, i >= 2)), 0, kNames[i]);
            // It is whole: what it lacks the library had no memory for. The next one to ask starts anew.
            const bool isWhole = result[i] != nullptr && result[i]->hasGlyph(U'A') &&
                                 result[i]->metrics().unitsPerEm == kLiberationSansUnitsPerEm;
            if (!isWhole) throw std::bad_alloc();
        }
        return result;
    }());
    return faces.value[style.ordinal()];
}

}  // namespace VEXA
