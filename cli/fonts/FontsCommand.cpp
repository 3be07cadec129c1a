#include "cli/FontsCommand.h"

#include <charconv>
#include <limits>

#include "cli/CallersFonts.h"
#include "cli/Messages.h"
#include "cli/NumberText.h"
#include "vexa/fonts/FontReport.h"
#include "vexa/support/core/Decimal.h"
#include "vexa/support/core/Limits.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA::Cli {
namespace {

/// Text is kept as characters, and bytes that are none would be told and measured as something else.
bool isUtf8(const std::string& text) { return String(text).toUtf8() == text; }

std::string problemOf(const FontsOptions& options, std::optional<float> size) {
    if (!size) return "--size \"" + options.size + "\" is not a number above 0 and up to 10000";
    if (!isUtf8(options.family)) return "--family \"" + options.family + "\" is not UTF-8";
    for (const std::string& text : options.texts) {
        if (!isUtf8(text)) return "the text \"" + text + "\" is not UTF-8";
    }
    return {};
}

Font fontOf(const FontsOptions& options, float size) {
    Font font;
    font.setFontFamily(options.family);
    font.setFontSize(size);
    if (options.isBold) font.setFontWeight(DrawingFontWeight::Bold);
    if (options.isItalic) font.setFontStyle(DrawingFontStyle::Italic);
    return font;
}

std::string quoted(const String& text) { return '"' + escapeForMessage(text).toUtf8() + '"'; }

std::string pixels(double width) {
    Decimal number(width);
    number.roundToPlaces(2);
    std::string text;
    number.appendFixed(text);
    return text + " px";
}

std::string faceAndFile(const std::string& face, const std::string& file) {
    return printable(face) + " (" + (file.empty() ? "built in" : printable(file)) + ")";
}

std::string lineOf(const ReportedRun& run) {
    return "  " + quoted(run.text) + ": " + pixels(run.width) + (run.isRightToLeft ? ", right to left, " : ", ") +
           faceAndFile(run.face, run.file) + "\n";
}

/// `"ᚠ" (U+16A0)`.
std::string nameOf(char32_t character) {
    constexpr std::size_t kDigits = 4;  // as Unicode writes the shorter ones
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<std::uint32_t>(character), 16).ptr;
    std::string code(digits, end);
    for (char& digit : code) digit = static_cast<char>(digit >= 'a' ? digit - 'a' + 'A' : digit);
    if (code.size() < kDigits) code.insert(0, kDigits - code.size(), '0');
    return quoted(String(std::u32string_view(&character, 1))) + " (U+" + code + ")";
}

std::string linesOf(const String& text, const FontReport& report) {
    std::string lines = quoted(text) + ": " + pixels(report.width) + "\n";
    for (const ReportedRun& run : report.runs) lines += lineOf(run);
    for (const char32_t character : report.missing)
        lines += "  no font has " + nameOf(character) + ": a box is drawn\n";
    return lines;
}

}  // namespace

Answer listFonts(const FontsOptions& options) {
    const auto size = readNumber(options.size, std::numeric_limits<float>::min(), Limits::kFontSize);
    if (const std::string problem = problemOf(options, size); !problem.empty()) {
        return {usageMessage("fonts", problem), kWrongUsage};
    }
    const std::shared_ptr<FontService> service = callersFonts(options.directories);
    const Font font = fontOf(options, *size);
    const FontReport family = describeFonts(*service, font, {});
    Answer answer{printable(options.family) + ": " + faceAndFile(family.face, family.file) + "\n"};
    for (const std::string& text : options.texts) {
        answer.text += linesOf(text, describeFonts(*service, font, text));
    }
    return answer;
}

}  // namespace VEXA::Cli
