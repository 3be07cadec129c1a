#include "vexa/fonts/FontCatalog.h"

#include <algorithm>
#include <memory>

#include "vexa/fonts/FontDirectory.h"

namespace VEXA {

namespace {

/// Each takes some ten kilobytes; styles, scripts and generic families could ask for 400.
constexpr std::size_t kLists = 64;

/// Without a configuration there are no fonts, and no complaint.
FontconfigPtr<FcConfig> machineConfiguration() {
    const Fontconfig& fc = fontconfig();
    FontconfigPtr<FcConfig> configuration(fc.ConfigCreate());
    fc.ConfigParseAndLoad(configuration.get(), nullptr, FcFalse);
    fc.ConfigBuildFonts(configuration.get());
    return configuration;
}

}  // namespace

FontCatalog* FontCatalog::ofMachine() {
    // Packages replace a font file by another one of its name, so those of the machine can be mapped.
    static const Immortal<std::unique_ptr<FontCatalog>> catalog(
        hasFontconfig() ? new FontCatalog(machineConfiguration(), FileAccess::Map) : nullptr);
    return catalog.value.get();
}

FontCatalog::FontCatalog(const std::string& directory) : FontCatalog(configurationOf(directory), FileAccess::Read) {}

FontCatalog::FontCatalog(FontconfigPtr<FcConfig> configuration, FileAccess access)
    : configuration_(std::move(configuration)), faces_(access) {}

FontFace* FontCatalog::findFamily(const std::string& utf8, FontStyleRequest style) {
    std::string family = comparableFamily(utf8);
    const std::lock_guard lock(mutex_);
    if (!names_) names_.emplace(*configuration_);
    if (!names_->has(family)) return nullptr;
    const auto [entry, isNew] = families_.try_emplace({std::move(family), style.ordinal()}, nullptr);
    if (isNew) {
        const auto answer = match(utf8, style);
        if (answer != nullptr && isMeant(*answer, entry->first.first, style)) entry->second = faces_.open(*answer);
    }
    return entry->second;
}

FontconfigPtr<FcPattern> FontCatalog::match(const std::string& family, FontStyleRequest style) const {
    const auto pattern = fontPattern(*configuration_, {family, "und", style, false});
    FcResult result = FcResultMatch;
    return FontconfigPtr<FcPattern>(fontconfig().FontMatch(configuration_.get(), pattern.get(), &result));
}

// fontconfig always answers with some font. It means it when the font has the name, or when an unknown name would have
// got another answer.
bool FontCatalog::isMeant(const FcPattern& answer, const std::string& family, FontStyleRequest style) {
    const std::string first = comparableFamily(fontText(answer, FC_FAMILY));
    for (int i = 0;; ++i) {
        const std::string name = fontText(answer, FC_FAMILY, i);
        if (name.empty()) break;
        if (comparableFamily(name) == family) return true;
    }
    return !first.empty() && first != familyOfUnknown(style);
}

const std::string& FontCatalog::familyOfUnknown(FontStyleRequest style) {
    auto& family = unknown_[style.ordinal()];
    if (!family) {
        const auto answer = match("a family that nobody has", style);
        family = answer == nullptr ? std::string() : comparableFamily(fontText(*answer, FC_FAMILY));
    }
    return *family;
}

FontFace* FontCatalog::findCharacters(std::u32string_view characters, const FallbackRequest& request) {
    const std::lock_guard lock(mutex_);
    return listFor(request).find(characters, faces_);
}

const FallbackList& FontCatalog::listFor(const FallbackRequest& request) {
    const auto found =
        std::find_if(lists_.begin(), lists_.end(), [&](const auto& each) { return each.first == request; });
    if (found != lists_.end()) return found->second;
    if (lists_.size() == kLists) lists_.pop_front();
    return lists_.emplace_back(request, FallbackList(*configuration_, request)).second;
}

}  // namespace VEXA
