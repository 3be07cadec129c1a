#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "vexa/support/values/TextScanner.h"

namespace VEXA {

/// One value of an enumeration and the word that stands for it in a document.
template <class E>
struct Keyword {
    E value;
    std::string_view text;
};

/// The operations on a table of keywords `kRows`, a constexpr array of Keyword.
template <const auto& kRows>
class Keywords {
public:
    using E = decltype(kRows[0].value);

    /// A keyword exactly as written in the table, white space at both ends allowed.
    static bool parse(std::string_view text, E& out) noexcept {
        const std::string_view word = TextScanner::trim(text);
        for (const auto& row : kRows) {
            if (row.text != word) continue;
            out = row.value;
            return true;
        }
        return false;
    }

    /// The keyword; the ordinal of a value without one.
    static std::string print(E value) {
        for (const auto& row : kRows) {
            if (row.value == value) return std::string(row.text);
        }
        return std::to_string(static_cast<std::int32_t>(value));
    }

    /// "one of fit, overflow".
    static constexpr std::string_view list() noexcept { return {kList.data(), kList.size()}; }

    /// In the order of the table.
    static constexpr auto kTexts = [] {
        std::array<std::string_view, std::size(kRows)> texts;
        std::ranges::transform(kRows, texts.begin(), [](const auto& row) { return row.text; });
        return texts;
    }();

private:
    static constexpr std::string_view kStart = "one of ";
    static constexpr std::string_view kSeparator = ", ";

    static constexpr std::size_t kListSize = [] {
        std::size_t size = kStart.size() + kSeparator.size() * (std::size(kRows) - 1);
        for (const auto& row : kRows) size += row.text.size();
        return size;
    }();

    static constexpr auto kList = [] {
        std::array<char, kListSize> result{};
        auto at = std::ranges::copy(kStart, result.begin()).out;
        for (const auto& row : kRows) {
            if (&row != &kRows[0]) at = std::ranges::copy(kSeparator, at).out;
            at = std::ranges::copy(row.text, at).out;
        }
        return result;
    }();
};

}  // namespace VEXA
