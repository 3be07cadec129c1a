#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>

#include "vexa/fonts/FaceFinder.h"
#include "vexa/fonts/SystemFontService.h"
#include "vexa/fonts/WidthCache.h"

namespace VEXA {

/// What the programs of one service share.
struct FontLibrary {
    explicit FontLibrary(const std::vector<std::string>& directories) : finder(directories) {}

    FaceFinder finder;
    WidthCache widths;
};

/// Measures and shapes with the fonts of a list of families. Safe from several threads.
class SystemFontProgram final : public ShapingFontProgram {
public:
    /// A list that begins with a built-in family is not looked up before a text needs it.
    SystemFontProgram(std::shared_ptr<FontLibrary> library, String families, FontStyleRequest style);
    /// One of the built-in family that lives as long as the process.
    static SmartPtr<FontProgram> immortal(std::shared_ptr<FontLibrary> library, FontStyleRequest style);

    FontMetrics getMetrics() const noexcept override;
    int measureString(const String& text) const override;
    ShapedText shape(const String& text) const override;
    const FontFace& primaryFace() const override { return *stack().faces.front(); }

private:
    SystemFontProgram(ImmortalTag tag, std::shared_ptr<FontLibrary> library, FontStyleRequest style);

    const FontStack& stack() const;
    bool startsBuiltIn() const noexcept;
    int measureShaped(const String& text) const;

    std::shared_ptr<FontLibrary> library_;
    String families_;
    FontStyleRequest style_;
    mutable std::mutex stackMutex_;
    mutable std::atomic<bool> isResolved_{false};
    mutable FontStack stack_;  ///< does not change once resolved
    std::uint64_t id_;
    bool isBuiltIn_;  // from here on the constructor may ask for the stack
    FontMetrics metrics_;
};

}  // namespace VEXA
