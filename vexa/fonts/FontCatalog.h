#pragma once

#include <list>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "vexa/fonts/FallbackList.h"
#include "vexa/fonts/FamilyNames.h"

namespace VEXA {

/// Fonts that are found through fontconfig: those of the machine, or those of a directory that a caller named. Its
/// faces live as long as it does. Safe from several threads.
class FontCatalog {
public:
    /// Made when first asked for, kept for good; null where fontconfig is not installed.
    static FontCatalog* ofMachine();
    /// Reads the fonts of a directory and of all below it. Throws Exception 34030 when it cannot be read, 34032 when it
    /// holds no font, 34034 when one is cut off, 1007 without fontconfig.
    explicit FontCatalog(const std::string& directory);

    /// The face of a family, or of the one that stands for it by the machine's rules (Liberation Serif for Times New
    /// Roman); null when there is none.
    FontFace* findFamily(const std::string& utf8, FontStyleRequest style);

    /// The first face, in the order that the machine's rules give, that has all of the characters; null when none has.
    FontFace* findCharacters(std::u32string_view characters, const FallbackRequest& request);

private:
    FontCatalog(FontconfigPtr<FcConfig> configuration, FileAccess access);

    using StyledFamily = std::pair<std::string, unsigned>;

    FontconfigPtr<FcPattern> match(const std::string& family, FontStyleRequest style) const;
    bool isMeant(const FcPattern& answer, const std::string& family, FontStyleRequest style);
    const std::string& familyOfUnknown(FontStyleRequest style);
    const FallbackList& listFor(const FallbackRequest& request);

    std::mutex mutex_;
    FontconfigPtr<FcConfig> configuration_;
    std::optional<FamilyNames> names_;  // read when a family is first asked for
    FaceStore faces_;
    std::map<StyledFamily, FontFace*> families_;  // as many as there are names
    std::optional<std::string> unknown_[4];       // of each style
    std::list<std::pair<FallbackRequest, FallbackList>> lists_;
};

}  // namespace VEXA
