#include "vexa/fonts/SystemFontService.h"

#include <array>

#include "vexa/fonts/SystemFontProgram.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

/// Lists of families whose programs are kept: twice as many. Documents of strangers may ask for any.
constexpr std::size_t kPrograms = 128;

constexpr std::size_t kStyles = 4;

FontStyleRequest styleOf(const Font& font) noexcept {
    return {font.getFontWeight() == DrawingFontWeight::Bold, font.getFontStyle() == DrawingFontStyle::Italic};
}

class SystemFontService final : public FontService {
public:
    using BuiltInPrograms = std::array<SmartPtr<FontProgram>, kStyles>;

    SystemFontService(std::shared_ptr<FontLibrary> library, BuiltInPrograms builtIn)
        : library_(std::move(library)), builtIn_(std::move(builtIn)), programs_(kPrograms) {}

    SmartPtr<FontProgram> getFont(const Font& font) override;

private:
    struct Key {
        String families;
        unsigned style;

        friend bool operator==(const Key&, const Key&) = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const noexcept {
            return std::hash<String>()(key.families) * kStyles + key.style;
        }
    };

    std::shared_ptr<FontLibrary> library_;
    BuiltInPrograms builtIn_;
    std::mutex mutex_;
    BoundedCache<Key, SmartPtr<FontProgram>, KeyHash> programs_;
};

// Asked for at each measured text.
SmartPtr<FontProgram> SystemFontService::getFont(const Font& font) {
    const FontStyleRequest style = styleOf(font);
    const String& families = font.getFontFamily();
    if (isBuiltInFamily(families.view())) return builtIn_[style.ordinal()];
    const bool isLong = families.length() > Limits::kFontFamily;  // what is further on counts for nothing
    const Key key{isLong ? families.subString(0, Limits::kFontFamily) : families, style.ordinal()};
    {
        const std::lock_guard lock(mutex_);
        if (const auto* const known = programs_.find(key)) return *known;
    }
    const SmartPtr<FontProgram> program = make<SystemFontProgram>(library_, key.families, style);
    const std::lock_guard lock(mutex_);
    programs_.insert(key, program);
    return program;
}

constexpr FontStyleRequest kAllStyles[kStyles] = {{false, false}, {true, false}, {false, true}, {true, true}};

template <class MakeProgram>
std::shared_ptr<FontService> serviceOver(const std::vector<std::string>& directories, MakeProgram makeProgram) {
    auto library = std::make_shared<FontLibrary>(directories);
    SystemFontService::BuiltInPrograms builtIn;
    for (const FontStyleRequest style : kAllStyles) builtIn[style.ordinal()] = makeProgram(library, style);
    return std::make_shared<SystemFontService>(std::move(library), std::move(builtIn));
}

SmartPtr<FontProgram> countedProgram(std::shared_ptr<FontLibrary> library, FontStyleRequest style) {
    return make<SystemFontProgram>(std::move(library), String(), style);
}

}  // namespace

std::shared_ptr<FontService> systemFontService(SystemFontOptions options) {
    if (!options.directories.empty()) return serviceOver(options.directories, countedProgram);
    static const Immortal<std::shared_ptr<FontService>> service(serviceOver({}, SystemFontProgram::immortal));
    return service.value;
}

}  // namespace VEXA
