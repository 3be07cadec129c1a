#include "cli/Messages.h"

#include "cli/RenderOptions.h"

namespace VEXA::Cli {
namespace {

void appendShown(std::string_view text, std::string& out) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0x20 && byte != 0x7F) {
            out += character;
        } else {
            out += {'\\', 'x', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
        }
    }
}

}  // namespace

std::string inputName(const std::string& file) { return file == kStandardStream ? "<stdin>" : file; }

std::string outputName(const std::string& file) { return file == kStandardStream ? "<stdout>" : file; }

std::string messageLine(std::string_view file, SourcePlace place, Severity severity, std::string_view text) {
    std::string line;
    appendShown(file, line);
    if (place.isKnown()) line += ":" + std::to_string(place.line) + ":" + std::to_string(place.column);
    line += severity == Severity::Error ? ": error: " : ": warning: ";
    appendShown(text, line);
    line += '\n';
    return line;
}

void MessageCollector::write(const LogRecord& record) {
    if (record.severity == Severity::Error) return;
    lines_ += messageLine(file_, record.place, record.severity, record.message.toUtf8());
}

void MessageCollector::addError(SourcePlace place, std::string_view text) {
    lines_ += messageLine(file_, place, Severity::Error, text);
}

void MessageCollector::addError(std::string_view file, std::string_view text) {
    lines_ += messageLine(file, {}, Severity::Error, text);
}

}  // namespace VEXA::Cli
