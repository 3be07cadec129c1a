#pragma once

#include <string>
#include <string_view>

#include "vexa/support/core/Log.h"

namespace VEXA::Cli {

/// What a file is called in messages: its name, or `<stdin>` or `<stdout>` for "-".
std::string inputName(const std::string& file);
std::string outputName(const std::string& file);

/// One line of text with its invisible characters as escapes, so that a name in it cannot steer a terminal.
std::string printable(std::string_view text);

/// What is wrong with the command line of `vexa COMMAND`, and where to read on; printable.
std::string usageMessage(std::string_view command, std::string_view problem);

/// "error", "warning" or "hint".
std::string_view severityName(Severity severity) noexcept;

/// `file:line:column: warning: text` with a line feed; without the place when it is not known. All of it is
/// printable.
std::string messageLine(std::string_view file, SourcePlace place, Severity severity, std::string_view text);

/// Collects the messages about one document, so that those of documents drawn at the same time do not mix. Errors that
/// reach the log are left out: they are thrown as well, and whoever catches them tells them.
class MessageCollector final : public LogSink {
public:
    explicit MessageCollector(std::string file) : file_(std::move(file)) {}

    void write(const LogRecord& record) override;
    void addError(SourcePlace place, std::string_view text);
    /// An error about another file than the document.
    void addError(std::string_view file, std::string_view text);

    bool hasWarnings() const noexcept { return hasWarnings_; }
    std::string takeLines() noexcept { return std::move(lines_); }

private:
    std::string file_;
    std::string lines_;
    bool hasWarnings_ = false;
};

}  // namespace VEXA::Cli
