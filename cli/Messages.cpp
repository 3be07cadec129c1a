#include "cli/Messages.h"

#include "cli/RenderOptions.h"
#include "vexa/support/core/QuotedText.h"

namespace VEXA::Cli {

std::string printable(std::string_view text) { return escapeForMessage(String(text)).toUtf8(); }

std::string inputName(const std::string& file) { return file == kStandardStream ? "<stdin>" : file; }

std::string outputName(const std::string& file) { return file == kStandardStream ? "<stdout>" : file; }

std::string usageMessage(std::string_view command, std::string_view problem) {
    const std::string name = "vexa " + std::string(command);
    return name + ": " + printable(problem) + "\n" + name + " --help tells how.\n";
}

std::string_view severityName(Severity severity) noexcept {
    switch (severity) {
        case Severity::Hint:
            return "hint";
        case Severity::Warning:
            return "warning";
        case Severity::Error:
            break;
    }
    return "error";
}

std::string messageLine(std::string_view file, SourcePlace place, Severity severity, std::string_view text) {
    std::string line = printable(file);
    if (place.isKnown()) line += ":" + std::to_string(place.line) + ":" + std::to_string(place.column);
    line.append(": ").append(severityName(severity)).append(": ");
    return line + printable(text) + '\n';
}

void MessageCollector::write(const LogRecord& record) {
    if (record.severity == Severity::Error) return;
    hasWarnings_ = true;
    lines_ += messageLine(file_, record.place, record.severity, record.message.toUtf8());
}

void MessageCollector::addError(SourcePlace place, std::string_view text) {
    lines_ += messageLine(file_, place, Severity::Error, text);
}

void MessageCollector::addError(std::string_view file, std::string_view text) {
    lines_ += messageLine(file, {}, Severity::Error, text);
}

}  // namespace VEXA::Cli
