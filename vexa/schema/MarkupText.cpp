#include "vexa/schema/MarkupText.h"

#include <algorithm>

namespace VEXA {

std::string escapedMarkup(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '"':
                result += "&quot;";
                break;
            default:
                result += c;
        }
    }
    return result;
}

std::string withoutMarkdown(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (text.substr(i).starts_with("](")) {
            i = std::min(text.find(')', i), text.size());
        } else if (c == '\n') {
            result += ' ';
        } else if (c != '`' && c != '[') {
            result += c;
        }
    }
    return result;
}

std::string indentedMarkup(std::string_view lines) {
    constexpr std::size_t kStep = 2;
    std::string result;
    std::size_t depth = 0;
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(std::min(lines.size(), line.size() + 1));
        const bool isEnd = line.starts_with("</");
        const bool isStart = !isEnd && !line.starts_with("<?") && !line.starts_with("<!") && !line.ends_with("/>") &&
                             line.find("</") == line.npos;
        if (isEnd) depth -= kStep;
        result.append(depth, ' ').append(line) += '\n';
        if (isStart) depth += kStep;
    }
    return result;
}

}  // namespace VEXA
