#include "vexa/fonts/SystemFontProgram.h"

#include <atomic>
#include <cmath>

#include "vexa/fonts/Shaper.h"
#include "vexa/support/core/Math.h"
#include "vexa/support/drawing/FontFamilyList.h"
#include "vexa/support/drawing/LiberationSansText.h"
#include "vexa/support/drawing/LiberationSansWidths.h"

namespace VEXA {

namespace {

constexpr FontMetrics kBuiltInMetrics{kLiberationSansUnitsPerEm, kLiberationSansAscent, kLiberationSansDescent};

std::uint64_t nextId() noexcept {
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

}  // namespace

SystemFontProgram::SystemFontProgram(std::shared_ptr<FontLibrary> library, String families, FontStyleRequest style)
    : library_(std::move(library)),
      families_(std::move(families)),
      style_(style),
      id_(nextId()),
      isBuiltIn_(startsBuiltIn() || stack().faces.front() == compiledFace(style)),
      metrics_(isBuiltIn_ ? kBuiltInMetrics : primaryFace().metrics()) {}

SystemFontProgram::SystemFontProgram(ImmortalTag tag, std::shared_ptr<FontLibrary> library, FontStyleRequest style)
    : ShapingFontProgram(tag),
      library_(std::move(library)),
      style_(style),
      id_(nextId()),
      isBuiltIn_(true),
      metrics_(kBuiltInMetrics) {}

SmartPtr<FontProgram> SystemFontProgram::immortal(std::shared_ptr<FontLibrary> library, FontStyleRequest style) {
    return SmartPtr<FontProgram>::immortal(new SystemFontProgram(ImmortalTag(), std::move(library), style));
}

bool SystemFontProgram::startsBuiltIn() const noexcept {
    return isBuiltInFamily(FontFamilyList(families_.view()).next().value_or(std::u32string_view()));
}

const FontStack& SystemFontProgram::stack() const {
    // Not std::call_once: an exception would have to pass the C library, which a statically linked unwinder cannot.
    if (!isResolved_.load(std::memory_order_acquire)) {
        const std::lock_guard lock(stackMutex_);
        if (!isResolved_.load(std::memory_order_relaxed)) {
            stack_ = library_->finder.findFamilies(families_, style_);
            isResolved_.store(true, std::memory_order_release);
        }
    }
    return stack_;
}

FontMetrics SystemFontProgram::getMetrics() const noexcept { return metrics_; }

int SystemFontProgram::measureString(const String& text) const {
    if (isBuiltIn_) {
        const auto width = liberationSansTextWidth(style_.bold, style_.italic, text.view());
        if (width) return Math::toInt(static_cast<double>(*width));
    }
    return measureShaped(text);
}

int SystemFontProgram::measureShaped(const String& text) const {
    if (const auto known = library_->widths.find(id_, text)) {
        FontManager::noteMissing(known->missing);
        return known->width;
    }
    const ShapedText measured = measureText(text.view(), stack(), library_->finder);
    FontManager::noteMissing(measured.missing);
    const int width = Math::toInt(std::round(measured.advance));
    library_->widths.insert(id_, text, {width, measured.missing});
    return width;
}

ShapedText SystemFontProgram::shape(const String& text) const {
    ShapedText shaped = shapeText(text.view(), stack(), library_->finder);
    FontManager::noteMissing(shaped.missing);
    return shaped;
}

}  // namespace VEXA
