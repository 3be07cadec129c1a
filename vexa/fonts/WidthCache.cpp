#include "vexa/fonts/WidthCache.h"

namespace VEXA {

namespace {

constexpr std::size_t kEntryCost = 40;         // in characters: what an entry takes beside its text
constexpr std::size_t kCapacity = 512 * 1024;  // 2 MB, and as much once more for what was used before
constexpr std::size_t kLongest = 4096;         // characters; a render remembers longer texts itself

}  // namespace

WidthCache::WidthCache() : widths_(kCapacity) {}

std::optional<MeasuredText> WidthCache::find(std::uint64_t program, const String& text) {
    const std::lock_guard lock(mutex_);
    const MeasuredText* const known = widths_.find({program, text});
    return known == nullptr ? std::nullopt : std::optional(*known);
}

void WidthCache::insert(std::uint64_t program, const String& text, const MeasuredText& measured) {
    if (text.length() > kLongest) return;
    const std::lock_guard lock(mutex_);
    widths_.insert({program, text}, measured, kEntryCost + text.length() + measured.missing.size());
}

}  // namespace VEXA
