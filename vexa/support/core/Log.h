#pragma once

#include <cstddef>
#include <memory>

#include "vexa/support/core/Exception.h"
#include "vexa/support/core/Limits.h"

namespace VEXA {

enum class Severity : std::uint8_t {
    Hint,     ///< a document does as it says, which will hardly be what was meant; only checks look for these
    Warning,  ///< a part of the picture is missing or differs from what the document asks for
    Error,    ///< there is no picture
};

struct LogRecord {
    Severity severity = Severity::Warning;
    int code = 0;  ///< number of the message, see String::loadString
    String message;
    SourcePlace place;
};

/// Receives what is logged. Called from any thread that logs.
class LogSink {
public:
    virtual ~LogSink() = default;
    virtual void write(const LogRecord& record) = 0;
    /// Whether warnings of that number are of use; others are not even counted.
    virtual bool wantsWarning(int) const { return true; }
};

/// The log. By default warnings go to the standard error stream; errors do not, since who catches the exception tells
/// them.
class Log {
public:
    /// Writes message `code` with its arguments.
    static void warning(int code, const VariantArray& arguments = {}, SourcePlace place = {});
    static void write(const LogRecord& record);
    /// Whether a warning of that number would be told; not beyond the limit of a document, which spares the work on its
    /// text.
    static bool takesWarning(int code);

    /// The sink of all threads without one of their own; empty restores the default. Returns the one before.
    static std::shared_ptr<LogSink> setSink(std::shared_ptr<LogSink> sink);
};

/// Bounds the warnings of one document: while the scope lives, this thread writes `limit` of them, then one that says
/// so (message 3014), then none. A scope inside another one counts on with it.
class WarningLimitScope {
public:
    explicit WarningLimitScope(std::size_t limit = Limits::kWarnings) noexcept;
    ~WarningLimitScope();
    WarningLimitScope(const WarningLimitScope&) = delete;
    WarningLimitScope& operator=(const WarningLimitScope&) = delete;

    /// How many warnings were not written.
    std::size_t leftOut() const noexcept;
};

/// Sends what this thread logs to `sink` while the scope lives, so that the messages of two documents do not mix.
class LogScope {
public:
    explicit LogScope(LogSink& sink) noexcept;
    ~LogScope();
    LogScope(const LogScope&) = delete;
    LogScope& operator=(const LogScope&) = delete;

private:
    LogSink* previous_;
};

}  // namespace VEXA
