#include "vexa/support/xml/Synonyms.h"

#include <algorithm>

namespace VEXA {

namespace {

Vector<std::string_view> wordsOf(SynonymGroup group) {
    Vector<std::string_view> words;
    for (std::size_t end = 0; end != std::string_view::npos;) {
        end = group.find(' ');
        words.push_back(group.substr(0, end));
        group.remove_prefix(std::min(end, group.size() - 1) + 1);
    }
    return words;
}

}  // namespace

Vector<std::string_view> synonymsOf(std::string_view word, std::span<const SynonymGroup> groups,
                                    std::span<const std::string_view> known) {
    Vector<std::string_view> names;
    for (const SynonymGroup group : groups) {
        const Vector<std::string_view> words = wordsOf(group);
        if (std::ranges::find(words, word) == words.end()) continue;
        const auto name = std::ranges::find_first_of(words, known);
        if (name != words.end() && std::ranges::find(names, *name) == names.end()) names.push_back(*name);
    }
    return names;
}

}  // namespace VEXA
