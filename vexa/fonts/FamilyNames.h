#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

#include "vexa/fonts/Fontconfig.h"

namespace VEXA {

/// The names of families that fontconfig can say something about: those of its fonts, and those that its rules speak
/// of. It answers every other one with the same font, which takes it a fifth of a millisecond each time: too long where
/// documents of strangers ask for thousands of families.
class FamilyNames {
public:
    explicit FamilyNames(FcConfig& configuration);

    /// The name as comparableFamily gives it.
    bool has(const std::string& family) const { return names_.count(family) > 0; }

private:
    void addFonts(const FcFontSet* fonts);
    void addRules(std::string_view xml);

    std::unordered_set<std::string> names_;
};

}  // namespace VEXA
