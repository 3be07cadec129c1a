#pragma once

#include <chrono>
#include <cstddef>

#include "cli/Console.h"

namespace VEXA::Cli {

/// One line on a terminal that tells how far many jobs have come. Writes nothing for a single job, or where nobody
/// watches. The line is gone when the object is.
class Progress {
public:
    using Clock = std::chrono::steady_clock;

    /// A job that ends within `interval` of the last change of the line waits for the next one.
    Progress(Console& console, std::size_t total, Clock::duration interval = std::chrono::milliseconds(50));
    ~Progress() { clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void show(std::size_t done, std::size_t failed);
    /// Takes the line away, so that something else can be written.
    void clear();

private:
    Console& console_;
    std::size_t total_;
    Clock::duration interval_;
    Clock::time_point shownAt_;
    bool isEnabled_;
    bool isVisible_ = false;
};

}  // namespace VEXA::Cli
