#pragma once

namespace VEXA::Cli {

/// Prepares the process for the signals of a program that writes files. A closed pipe and a reached limit of file sizes
/// become errors of the write, which say what is wrong. SIGINT, SIGTERM and SIGHUP end the program as ever, but not in
/// the middle of an UninterruptedScope; those that the caller has ignored (nohup) stay ignored.
void handleSignals() noexcept;

/// Keeps an interruption waiting while a file is written and takes its place, so that it leaves no temporary one. Not
/// for what may take long, such as a pipe without a reader.
class UninterruptedScope {
public:
    UninterruptedScope() noexcept;
    ~UninterruptedScope();
    UninterruptedScope(const UninterruptedScope&) = delete;
    UninterruptedScope& operator=(const UninterruptedScope&) = delete;
};

}  // namespace VEXA::Cli
