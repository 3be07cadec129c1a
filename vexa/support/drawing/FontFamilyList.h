#pragma once

#include <optional>
#include <string_view>

namespace VEXA {

/// Takes a list of font families apart that is written as in a style sheet: names between commas, with or without
/// quotation marks. Of a very long list the first 1,000 characters count: each of many texts could bring one.
class FontFamilyList {
public:
    /// The characters belong to the caller, also those of the names.
    explicit FontFamilyList(std::u32string_view list) noexcept;

    /// The next name, not empty, without quotation marks and surrounding space; nothing at the end.
    std::optional<std::u32string_view> next() noexcept;

private:
    std::u32string_view takeName() noexcept;

    std::u32string_view rest_;
};

/// The keyword of a generic family ("serif") that the name is in any case of letters; nothing for other names.
std::optional<std::string_view> genericFamily(std::u32string_view name) noexcept;

/// Whether two names are the same but for the case of the letters A to Z.
bool equalsIgnoringCase(std::u32string_view name, std::string_view ascii) noexcept;

}  // namespace VEXA
