#pragma once

#include <cstddef>
#include <functional>

#include "cli/DocumentPainter.h"

namespace VEXA::Cli {

/// Hears how the jobs go, on the thread that runs them all.
struct JobListener {
    /// The results in the order of the jobs, each as soon as those before it are there.
    std::function<void(std::size_t index, RenderResult)> report;
    /// How many have ended, in whatever order.
    std::function<void(std::size_t done)> progress;
};

/// Runs `job(0)` to `job(count - 1)`, up to `threads` at once, and returns when all is reported. A job must not throw.
void runJobs(std::size_t count, unsigned threads, const std::function<RenderResult(std::size_t)>& job,
             const JobListener& listener);

}  // namespace VEXA::Cli
