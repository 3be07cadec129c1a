#include "vexa/support/core/NearestName.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "vexa/support/core/Limits.h"

namespace VEXA {

namespace {

constexpr std::size_t kMaxLength = 64;  // bounds the work for hostile names; no known name comes near it

char lower(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool same(char a, char b) noexcept { return lower(a) == lower(b); }

using Row = std::array<std::size_t, kMaxLength + 1>;

/// Damerau-Levenshtein distance in its optimal string alignment form, by rows.
/// REQUIRES: neither text is longer than kMaxLength.
std::size_t distance(std::string_view a, std::string_view b) noexcept {
    Row rows[3];
    Row* before = &rows[0];
    Row* above = &rows[1];
    Row* row = &rows[2];
    for (std::size_t j = 0; j <= b.size(); ++j) (*above)[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        (*row)[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = (*above)[j - 1] + (same(a[i - 1], b[j - 1]) ? 0 : 1);
            std::size_t best = std::min({change, (*above)[j] + 1, (*row)[j - 1] + 1});
            const bool swapped = i > 1 && j > 1 && same(a[i - 1], b[j - 2]) && same(a[i - 2], b[j - 1]);
            if (swapped) best = std::min(best, (*before)[j - 2] + 1);
            (*row)[j] = best;
        }
        std::swap(before, above);
        std::swap(above, row);
    }
    return (*above)[b.size()];
}

/// The first name that `wanted` is the beginning of.
std::string_view completed(std::string_view wanted, std::span<const std::string_view> known) noexcept {
    constexpr std::size_t kWord = 4;  // letters; fewer begin too many names
    if (wanted.size() < kWord) return {};
    const auto begins = [wanted](std::string_view name) {
        return name.size() > wanted.size() && std::equal(wanted.begin(), wanted.end(), name.begin(), same);
    };
    const auto found = std::find_if(known.begin(), known.end(), begins);
    return found == known.end() ? std::string_view() : *found;
}

}  // namespace

std::string_view nearestName(std::string_view wanted, std::span<const std::string_view> known) noexcept {
    if (wanted.size() > kMaxLength) return {};
    known = known.first(std::min(known.size(), Limits::kNearestNames));
    std::string_view nearest;
    std::size_t limit = std::clamp<std::size_t>(wanted.size() / 3, 1, 3);
    for (const std::string_view name : known) {
        const std::size_t shorter = std::min(name.size(), wanted.size());
        const std::size_t longer = std::max(name.size(), wanted.size());
        if (longer > kMaxLength || longer - shorter > limit) continue;
        const std::size_t edits = distance(wanted, name);
        const bool better = nearest.empty() ? edits <= limit : edits < limit;
        if (!better || edits >= longer) continue;  // a name of which nothing is kept is another name
        nearest = name;
        limit = edits;
    }
    return nearest.empty() ? completed(wanted, known) : nearest;
}

}  // namespace VEXA
