#include <algorithm>
#include <array>

#include "fuzz/support/PictureFaults.h"

// Millions of characters are looked at in a second with sanitizers on: one pass, a table, no allocation.
namespace VEXA::Fuzz {

namespace {

using Table = std::array<bool, 256>;

constexpr Table tableOf(std::string_view characters) {
    Table table{};
    for (const char c : characters) table[static_cast<unsigned char>(c)] = true;
    return table;
}

/// Between texts there is punctuation and numbers; letters would be those of nan and inf.
constexpr Table kPlain = tableOf("{}[]:,\n-+.0123456789e");
constexpr Table kPath = tableOf("MLCQAZ -+.0123456789e");

bool isMadeOf(std::string_view text, const Table& table) {
    for (const char c : text)
        if (!table[static_cast<unsigned char>(c)]) return false;
    return true;
}

std::size_t endOfText(std::string_view json, std::size_t begin) {
    std::size_t at = begin;
    while (at < json.size() && json[at] != '"' && json[at] != '\n') at += json[at] == '\\' ? 2 : 1;
    return at;
}

}  // namespace

std::string displayListFault(std::string_view displayList) {
    if (!displayList.empty() && displayList.back() != '\n') return "the last line is cut off";
    std::string_view before;  // the text before this one: the name of this value, when a colon stands between them
    for (std::size_t at = 0; at < displayList.size();) {
        const std::size_t quote = std::min(displayList.find('"', at), displayList.size());
        const std::string_view plain = displayList.substr(at, quote - at);
        if (!isMadeOf(plain, kPlain)) return "no number behind \"" + std::string(before) + "\": " + std::string(plain);
        if (quote == displayList.size()) break;
        const std::size_t end = endOfText(displayList, quote + 1);
        if (end >= displayList.size() || displayList[end] != '"') return "a text without end";
        const std::string_view text = displayList.substr(quote + 1, end - quote - 1);
        if (before == "d" && plain == ":" && !isMadeOf(text, kPath))
            return "no number in a path: " + std::string(text.substr(0, 500));
        before = text;
        at = end + 1;
    }
    return {};
}

}  // namespace VEXA::Fuzz
