#include "vexa/support/xml/Synonyms.h"

#include <algorithm>
#include <ranges>

namespace VEXA {

Vector<std::string_view> synonymsOf(std::string_view word, std::span<const SynonymGroup> groups,
                                    std::span<const std::string_view> known) {
    Vector<std::string_view> names;
    for (const SynonymGroup group : groups) {
        Vector<std::string_view> words;
        for (const auto part : std::views::split(group, ' ')) words.emplace_back(part.begin(), part.end());
        if (std::ranges::find(words, word) == words.end()) continue;
        const auto name = std::ranges::find_first_of(words, known);
        if (name != words.end() && std::ranges::find(names, *name) == names.end()) names.push_back(*name);
    }
    return names;
}

}  // namespace VEXA
