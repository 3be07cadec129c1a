#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "vexa/fonts/BoundedCache.h"
#include "vexa/fonts/FontCatalog.h"

namespace VEXA {

/// What a list of families resolved to.
struct FontStack {
    std::vector<SmartPtr<FontFace>> faces;  ///< in the order of the list; never empty
    FallbackRequest fallback;               ///< for what they lack
};

/// Finds faces for families and for characters: the caller's fonts first, then Liberation Sans, then the machine's.
/// Safe from several threads.
class FaceFinder {
public:
    /// Throws Exception 34030, 34032, 34034 or 1007 where a directory gives no fonts.
    explicit FaceFinder(const std::vector<std::string>& directories);

    FontStack findFamilies(const String& families, FontStyleRequest style) const;

    /// The face that shows all of the characters; null when no font does. It lives as long as the stack and the finder;
    /// `language` lives as long as the program. REQUIRES: at least one character.
    FontFace* findFace(const FontStack& stack, std::u32string_view characters, const char* language, bool isEmoji);

private:
    struct Wanted {
        std::u32string characters;
        FallbackRequest request;

        friend bool operator==(const Wanted&, const Wanted&) = default;
    };
    struct WantedHash {
        std::size_t operator()(const Wanted& wanted) const noexcept;
    };

    FontFace* findFamily(std::u32string_view name, FontStyleRequest style) const;
    FontFace* findElsewhere(const Wanted& wanted);
    FontFace* findInCatalogs(const Wanted& wanted);

    std::vector<std::unique_ptr<FontCatalog>> callersFonts_;  // one for each directory
    std::mutex mutex_;
    BoundedCache<Wanted, FontFace*, WantedHash> found_;
};

/// Whether the name is one that Liberation Sans goes by: sans-serif, Arial, Helvetica and its own; an empty one as
/// well.
bool isBuiltInFamily(std::u32string_view name) noexcept;
}  // namespace VEXA
