#include "vexa/fonts/ItemShaper.h"

#include <new>
#include <numeric>

#include "vexa/fonts/Scripts.h"

namespace VEXA {

namespace {

/// Characters. A buffer keeps its memory from text to text, but that of a longer one is given back.
constexpr std::size_t kLongestKept = 65'536;

HarfBuzzPtr<hb_buffer_t> newBuffer() { return takeCreated(harfBuzz().buffer_create(), harfBuzz().buffer_get_empty()); }

hb_buffer_t& threadBuffer() {
    thread_local const HarfBuzzPtr<hb_buffer_t> buffer = newBuffer();  // made anew after a failure
    return *buffer;
}

}  // namespace

double ItemGlyphs::advance() const noexcept {
    return std::accumulate(positions.begin(), positions.end(), 0.0,
                           [](double sum, const hb_glyph_position_t& each) { return sum + each.x_advance; });
}

ItemShaper::ItemShaper(std::u32string_view text) : text_(text), ofHan_(languageOfHan(text)) {}

hb_buffer_t& ItemShaper::bufferFor(const TextItem& item) {
    if (item.end - item.begin <= kLongestKept) return threadBuffer();
    if (largeBuffer_ == nullptr) largeBuffer_ = newBuffer();
    return *largeBuffer_;
}

ItemGlyphs ItemShaper::shape(const TextItem& item) {
    const HarfBuzz& hb = harfBuzz();
    hb_buffer_t& buffer = bufferFor(item);
    hb.buffer_clear_contents(&buffer);
    // It gets the whole text to look at, since Arabic letters join with those of the pieces before and after.
    hb.buffer_add_codepoints(&buffer, reinterpret_cast<const hb_codepoint_t*>(text_.data()),
                             static_cast<int>(text_.size()), item.begin, static_cast<int>(item.end - item.begin));
    const char* const language = hasRegionalForms(item.script) ? languageOf(item.script, ofHan_) : kNoLanguage;
    hb.buffer_set_direction(&buffer, item.isRightToLeft() ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb.buffer_set_script(&buffer, item.script);
    hb.buffer_set_language(&buffer, hb.language_from_string(language, -1));
    const bool isShaped = hb.shape_full(item.face->shapingFont(), &buffer, nullptr, 0, nullptr) != 0;
    if (!isShaped || hb.buffer_allocation_successful(&buffer) == 0) throw std::bad_alloc();
    unsigned count = 0;
    const hb_glyph_info_t* const infos = hb.buffer_get_glyph_infos(&buffer, &count);
    const hb_glyph_position_t* const positions = hb.buffer_get_glyph_positions(&buffer, &count);
    return {{infos, count}, {positions, count}};
}

}  // namespace VEXA
