#include "vexa/surfaces/cairo/PdfCatalog.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

namespace VEXA {

namespace {

/// The decimal number behind the last occurrence of a word.
std::optional<std::size_t> numberBehind(std::string_view text, std::string_view word) {
    const std::size_t found = text.rfind(word);
    if (found == text.npos) return std::nullopt;
    const std::string_view rest = text.substr(found + word.size());
    const std::size_t first = std::min(rest.find_first_not_of(" \r\n"), rest.size());
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(rest.data() + first, rest.data() + rest.size(), number);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

/// Where an object stands, by a table of one section that starts with object 0: lines of 20 bytes.
std::optional<std::size_t> placeOf(std::string_view pdf, std::size_t table, std::size_t object) {
    if (pdf.substr(table, 7) != "xref\n0 ") return std::nullopt;
    const std::size_t entry = pdf.find('\n', table + 5) + 1 + object * 20;
    std::size_t place = 0;
    if (entry + 20 > pdf.size()) return std::nullopt;
    const auto [end, error] = std::from_chars(pdf.data() + entry, pdf.data() + entry + 10, place);
    return error == std::errc() ? std::optional(place) : std::nullopt;
}

/// The inside of the catalog's dictionary.
std::string_view dictionaryAt(std::string_view pdf, std::size_t place) {
    const std::size_t start = pdf.find("<<", place);
    const std::size_t end = pdf.rfind(">>", pdf.find("endobj", place));
    if (start == pdf.npos || end == pdf.npos || end < start) return {};
    return pdf.substr(start + 2, end - start - 2);
}

bool isLanguageTag(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
    });
}

/// An entry of the table: ten digits, the generation, in use.
std::string tableEntry(std::size_t place) {
    const std::string digits = std::to_string(place);
    return std::string(10 - std::min<std::size_t>(digits.size(), 10), '0') + digits + " 00000 n \n";
}

}  // namespace

std::string catalogEntries(const DocumentInfo& info) {
    std::string entries;
    const std::string language = info.language.toUtf8();
    if (isLanguageTag(language)) entries += "   /Lang (" + language + ")\n";
    if (!info.title.isEmpty()) entries += "   /ViewerPreferences << /DisplayDocTitle true >>\n";
    return entries;
}

bool hasLostObjects(std::string_view pdf) {
    const auto table = numberBehind(pdf, "startxref");
    const auto size = numberBehind(pdf, "/Size ");
    if (!table || !size) return false;
    for (std::size_t object = 1; object < *size; ++object) {
        const auto place = placeOf(pdf, *table, object);
        if (!place) return false;
        const std::string head = std::to_string(object) + " 0 obj";
        if (pdf.substr(std::min(*place, pdf.size()), head.size()) != head) return true;
    }
    return false;
}

void addToCatalog(std::string& pdf, std::string_view entries) {
    if (entries.empty()) return;
    const auto table = numberBehind(pdf, "startxref");
    const auto catalog = numberBehind(pdf, "/Root ");
    const auto facts = numberBehind(pdf, "/Info ");
    const auto size = numberBehind(pdf, "/Size ");
    if (!table || !catalog || !facts || !size) return;
    const auto place = placeOf(pdf, *table, *catalog);
    const std::string inside(place ? dictionaryAt(pdf, *place) : std::string_view());
    if (inside.find("/Catalog") == inside.npos) return;
    const std::string number = std::to_string(*catalog);
    const std::size_t added = pdf.size();
    pdf.append(number).append(" 0 obj\n<<").append(inside).append(entries).append(">>\nendobj\n");
    const std::size_t addedTable = pdf.size();
    pdf.append("xref\n").append(number).append(" 1\n").append(tableEntry(added));
    pdf.append("trailer\n<< /Size " + std::to_string(*size) + "\n   /Root " + number + " 0 R\n   /Info " +
               std::to_string(*facts) + " 0 R\n   /Prev " + std::to_string(*table) + "\n>>\nstartxref\n" +
               std::to_string(addedTable) + "\n%%EOF\n");
}

}  // namespace VEXA
