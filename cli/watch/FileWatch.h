#pragma once

#include <signal.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "vexa/support/core/FileDescriptor.h"

namespace VEXA::Cli {

/// Waits for files to change. Their folders are watched, since editors put a new file in the place of the old one;
/// where the system cannot watch a folder, or changes may come from another machine, the files are looked at twice a
/// second.
class FileWatch {
public:
    explicit FileWatch(std::vector<std::string> files);

    /// Positions of the files that have changed since the last call, once they have come to rest; a file that is gone
    /// is waited for. None when the process was asked to end (see EndingSignals). `mask`: the signals that stay
    /// blocked meanwhile.
    std::vector<std::size_t> wait(const sigset_t& mask);

private:
    struct Stamp {
        std::int64_t time = 0;  // nanoseconds
        std::int64_t size = -1;
        std::uint64_t number = 0;
        bool operator==(const Stamp&) const = default;
    };
    static Stamp stampOf(const std::string& file) noexcept;
    void watchFolderOf(const std::string& file);
    bool waitForEvent(const sigset_t& mask, int milliseconds);
    std::vector<std::size_t> takeChanged();

    std::vector<std::string> files_;
    std::vector<Stamp> stamps_;
    IO::FileDescriptor events_;
    bool mustLook_ = false;
};

/// Keeps the signals by which a terminal or a system ends a program back while it lives, so that what is being written
/// is finished; FileWatch lets them through.
class EndingSignals {
public:
    EndingSignals();
    ~EndingSignals();
    EndingSignals(const EndingSignals&) = delete;
    EndingSignals& operator=(const EndingSignals&) = delete;

    /// The signals that were blocked before.
    const sigset_t& before() const noexcept { return before_; }

private:
    sigset_t before_;
    struct sigaction oldInterrupt_;
    struct sigaction oldTerminate_;
};

}  // namespace VEXA::Cli
