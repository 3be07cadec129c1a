#include "vexa/support/core/Log.h"

#include <cstdio>
#include <mutex>
#include <utility>

#include "vexa/support/core/Object.h"
#include "vexa/support/core/QuotedText.h"
#include "vexa/support/core/StringTable.h"

namespace VEXA {

namespace {

struct SharedSink {
    std::mutex mutex;
    std::shared_ptr<LogSink> sink;
};

constinit Immortal<SharedSink> sharedSink;
constinit thread_local LogSink* threadSink = nullptr;

/// The warnings of the document that this thread works on.
struct WarningCount {
    int scopes = 0;
    std::size_t limit = 0;
    std::size_t written = 0;
    std::size_t leftOut = 0;
};
constinit thread_local WarningCount warningCount;

std::shared_ptr<LogSink> currentSink() {
    const std::lock_guard lock(sharedSink.value.mutex);
    return sharedSink.value.sink;
}

/// One call writes the whole line, so that the lines of two threads do not mix.
void writeToStandardError(const LogRecord& record) {
    if (record.severity != Severity::Warning) return;
    std::string line;
    if (record.place.isKnown()) {
        line = std::to_string(record.place.line) + ":" + std::to_string(record.place.column) + ": ";
    }
    line += "warning: ";
    escapeForMessage(record.message).appendUtf8To(line);  // nothing drives the terminal, whoever wrote the message
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void deliver(const LogRecord& record) {
    if (threadSink != nullptr) {
        threadSink->write(record);
    } else if (const std::shared_ptr<LogSink> sink = currentSink()) {
        sink->write(record);  // outside the lock: a sink may log, or set another sink
    } else {
        writeToStandardError(record);
    }
}

bool isLimitReached() noexcept { return warningCount.scopes > 0 && warningCount.written >= warningCount.limit; }

bool isWanted(int code) { return threadSink == nullptr || threadSink->wantsWarning(code); }

/// One warning beyond the limit; the first one is told of.
void leaveOut(SourcePlace place) {
    if (warningCount.leftOut++ > 0) return;
    constexpr int kTooManyWarnings = 3014;
    const VariantArray limit{static_cast<std::int64_t>(warningCount.limit)};
    deliver({Severity::Warning, kTooManyWarnings, messageText(kTooManyWarnings, limit), place});
}

}  // namespace

void Log::warning(int code, const VariantArray& arguments, SourcePlace place) {
    if (!isWanted(code)) return;
    if (isLimitReached()) return leaveOut(place);
    write({Severity::Warning, code, messageText(code, arguments), place});
}

void Log::write(const LogRecord& record) {
    if (record.severity == Severity::Error || warningCount.scopes == 0) return deliver(record);
    if (isLimitReached()) return leaveOut(record.place);
    ++warningCount.written;
    deliver(record);
}

bool Log::takesWarning(int code) { return !isLimitReached() && isWanted(code); }

WarningLimitScope::WarningLimitScope(std::size_t limit) noexcept {
    if (warningCount.scopes == 0) warningCount = {0, limit, 0, 0};
    ++warningCount.scopes;
}

WarningLimitScope::~WarningLimitScope() { --warningCount.scopes; }

std::size_t WarningLimitScope::leftOut() const noexcept { return warningCount.leftOut; }

std::shared_ptr<LogSink> Log::setSink(std::shared_ptr<LogSink> sink) {
    const std::lock_guard lock(sharedSink.value.mutex);
    return std::exchange(sharedSink.value.sink, std::move(sink));
}

LogScope::LogScope(LogSink& sink) noexcept : previous_(std::exchange(threadSink, &sink)) {}

LogScope::~LogScope() { threadSink = previous_; }

}  // namespace VEXA
