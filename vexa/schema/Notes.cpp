#include "vexa/schema/Notes.h"

#include <algorithm>

namespace VEXA {

namespace {

/// `rest` without its first line, which is returned.
std::string_view takeLine(std::string_view& rest) noexcept {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    return line;
}

void appendLine(std::string_view line, std::string& out) {
    if (!out.empty()) out += '\n';
    out += line;
}

NoteSection startSection(std::string_view line) {
    constexpr std::string_view kSeparator = " = ";
    const std::size_t end = line.find(kSeparator);
    if (end == line.npos) return {line, line, {}, {}, {}};
    return {line.substr(0, end), line.substr(end + kSeparator.size()), {}, {}, {}};
}

void readSectionLine(std::string_view line, NoteSection& section) {
    if (line.starts_with('@')) {
        constexpr std::string_view kSeparator = ": ";
        const std::size_t end = line.find(kSeparator);
        if (end != line.npos) section.rows.emplace_back(line.substr(1, end - 1), line.substr(end + kSeparator.size()));
    } else if (line.starts_with("> ")) {
        appendLine(line.substr(2), section.example);
    } else if (!line.empty()) {
        appendLine(line, section.text);
    }
}

}  // namespace

std::string_view NoteSection::noteOf(std::string_view attribute) const noexcept {
    const auto row = std::ranges::find(rows, attribute, &std::pair<std::string_view, std::string_view>::first);
    return row == rows.end() ? std::string_view() : row->second;
}

std::vector<NoteChapter> readNotes(std::string_view text) {
    std::vector<NoteChapter> chapters;
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        if (line.starts_with("# ")) {
            chapters.push_back({line.substr(2), {}});
        } else if (line.starts_with("## ")) {
            chapters.back().sections.push_back(startSection(line.substr(3)));
        } else if (!chapters.empty() && !chapters.back().sections.empty()) {
            readSectionLine(line, chapters.back().sections.back());
        }
    }
    return chapters;
}

const NoteSection* findSection(const std::vector<NoteChapter>& chapters, std::string_view name) noexcept {
    for (const NoteChapter& chapter : chapters) {
        const auto found = std::ranges::find(chapter.sections, name, &NoteSection::name);
        if (found != chapter.sections.end()) return &*found;
    }
    return nullptr;
}

}  // namespace VEXA
