#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/shell/OptionTable.h"

namespace VEXA::Cli {

/// In single quotes, as all three shells take it; `escapeQuote` is how the shell writes a quote within them.
inline std::string quoted(std::string_view text, const char* escapeQuote = "'\\''") {
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'') {
            result += escapeQuote;
        } else {
            result += c;
        }
    }
    return result + '\'';
}

inline std::string joined(const std::vector<std::string>& words, const char* separator = " ") {
    std::string result;
    for (const std::string& word : words) result += (result.empty() ? "" : separator) + word;
    return result;
}

inline std::vector<std::string> namesOf(const std::vector<OptionEntry>& options) {
    std::vector<std::string> names;
    for (const OptionEntry& option : options) names.insert(names.end(), option.names.begin(), option.names.end());
    return names;
}

}  // namespace VEXA::Cli
