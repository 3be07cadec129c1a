#include "vexa/fonts/FaceFinder.h"

#include <algorithm>
#include <iterator>

#include "vexa/fonts/GlyphCoverage.h"
#include "vexa/fonts/Scripts.h"
#include "vexa/support/drawing/FontFamilyList.h"

namespace VEXA {

namespace {

/// Characters, or clusters of them, whose fonts are remembered: twice as many, in some 2 MB.
constexpr std::size_t kRemembered = 8192;

}  // namespace

bool isBuiltInFamily(std::u32string_view name) noexcept {
    static constexpr std::string_view kNames[] = {"Arial", "Helvetica", "Liberation Sans", "sans-serif"};
    if (name.empty() || name == U"sans-serif") return true;  // what most texts ask for
    return std::any_of(std::begin(kNames), std::end(kNames),
                       [name](std::string_view each) { return equalsIgnoringCase(name, each); });
}

FaceFinder::FaceFinder(const std::vector<std::string>& directories) : found_(kRemembered) {
    for (const std::string& directory : directories) {
        callersFonts_.push_back(std::make_unique<FontCatalog>(directory));
    }
}

FontStack FaceFinder::findFamilies(const String& families, FontStyleRequest style) const {
    FontStack stack;
    stack.fallback.style = style;
    std::optional<std::string_view> generic;
    FontFamilyList list(families.view());
    while (const auto name = list.next()) {
        if (!generic) generic = genericFamily(*name);
        FontFace* const face = findFamily(*name, style);
        if (face != nullptr && std::find(stack.faces.begin(), stack.faces.end(), SmartPtr(face)) == stack.faces.end())
            stack.faces.emplace_back(face);
    }
    if (generic) stack.fallback.generic = *generic;
    if (stack.faces.empty()) stack.faces.push_back(compiledFace(style));
    return stack;
}

FontFace* FaceFinder::findFamily(std::u32string_view name, FontStyleRequest style) const {
    if (isBuiltInFamily(name)) return compiledFace(style).get();
    const std::string utf8 = String(name).toUtf8();
    for (const auto& catalog : callersFonts_) {
        if (FontFace* const face = catalog->findFamily(utf8, style)) return face;
    }
    FontCatalog* const machine = FontCatalog::ofMachine();
    return machine == nullptr ? nullptr : machine->findFamily(utf8, style);
}

FontFace* FaceFinder::findFace(const FontStack& stack, std::u32string_view characters, const char* language,
                               bool isEmoji) {
    for (const auto& face : stack.faces) {
        if ((face->isColored() || !isEmoji) && showsCluster(*face, characters)) return face.get();
    }
    Wanted wanted{std::u32string(characters), stack.fallback};
    wanted.request.language = language;
    if (isEmoji) {
        wanted.request = {{}, {}, kNoLanguage, true};
        if (FontFace* const face = findElsewhere(wanted)) return face;
        return findFace(stack, characters, language, false);
    }
    return findElsewhere(wanted);
}

FontFace* FaceFinder::findElsewhere(const Wanted& wanted) {
    {
        const std::lock_guard lock(mutex_);
        if (FontFace* const* const known = found_.find(wanted)) return *known;
    }
    FontFace* const face = findInCatalogs(wanted);
    const std::lock_guard lock(mutex_);
    found_.insert(wanted, face, wanted.characters.size());
    return face;
}

FontFace* FaceFinder::findInCatalogs(const Wanted& wanted) {
    for (const auto& catalog : callersFonts_) {
        if (FontFace* const face = catalog->findCharacters(wanted.characters, wanted.request)) return face;
    }
    if (!wanted.request.isEmoji) {
        FontFace* const builtIn = compiledFace(wanted.request.style).get();
        if (showsCluster(*builtIn, wanted.characters)) return builtIn;
    }
    FontCatalog* const machine = FontCatalog::ofMachine();
    return machine == nullptr ? nullptr : machine->findCharacters(wanted.characters, wanted.request);
}

std::size_t FaceFinder::WantedHash::operator()(const Wanted& wanted) const noexcept {
    const unsigned flags = wanted.request.style.ordinal() + (wanted.request.isEmoji ? 4U : 0U);
    return std::hash<std::u32string_view>()(wanted.characters) * 31 + flags;
}

}  // namespace VEXA
