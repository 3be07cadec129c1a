#include <algorithm>
#include <cstdint>
#include <limits>

#include "vexa/support/drawing/FontService.h"
#include "vexa/support/drawing/LiberationSansText.h"
#include "vexa/support/drawing/LiberationSansWidths.h"

namespace VEXA {

namespace {

class LiberationSansProgram final : public FontProgram {
public:
    constexpr LiberationSansProgram(bool bold, bool italic) noexcept
        : FontProgram(ImmortalTag()), bold_(bold), italic_(italic) {}

    FontMetrics getMetrics() const noexcept override {
        return {kLiberationSansUnitsPerEm, kLiberationSansAscent, kLiberationSansDescent};
    }

    int measureString(const String& text) const override {
        const std::int64_t width = approximateTextWidth(bold_, italic_, text.view());
        return static_cast<int>(std::clamp<std::int64_t>(width, 0, std::numeric_limits<int>::max()));
    }

private:
    bool bold_;
    bool italic_;
};

constinit Immortal<LiberationSansProgram> regular(false, false);
constinit Immortal<LiberationSansProgram> bold(true, false);
constinit Immortal<LiberationSansProgram> italic(false, true);
constinit Immortal<LiberationSansProgram> boldItalic(true, true);

class BuiltInFontService final : public FontService {
public:
    SmartPtr<FontProgram> getFont(const Font& font) override {
        const bool isItalic = font.getFontStyle() == DrawingFontStyle::Italic;
        const bool isBold = font.getFontWeight() == DrawingFontWeight::Bold;
        if (isBold) return SmartPtr<FontProgram>::immortal(isItalic ? &boldItalic.value : &bold.value);
        return SmartPtr<FontProgram>::immortal(isItalic ? &italic.value : &regular.value);
    }
};

}  // namespace

std::shared_ptr<FontService> builtInFontService() {
    static const Immortal<std::shared_ptr<FontService>> service(std::make_shared<BuiltInFontService>());
    return service.value;
}

}  // namespace VEXA
