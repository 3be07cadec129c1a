#include "cli/JobRunner.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace VEXA::Cli {
namespace {

/// Jobs that several threads take one after the other, and their results.
class JobQueue {
public:
    JobQueue(std::size_t count, const std::function<RenderResult(std::size_t)>& job) : job_(job), results_(count) {}

    /// Works until no job is left.
    void work() {
        for (std::size_t index = takeNext(); index < results_.size(); index = takeNext()) {
            RenderResult result = job_(index);
            const std::lock_guard lock(mutex_);
            results_[index] = std::move(result);
            ++done_;
            changed_.notify_one();
        }
    }

    /// Waits until more than `seen` jobs are done; the number of those that are.
    std::size_t waitForMoreThan(std::size_t seen) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return done_ > seen; });
        return done_;
    }

    /// The result of a job, once; nothing as long as it runs.
    std::optional<RenderResult> takeResult(std::size_t index) {
        const std::lock_guard lock(mutex_);
        return std::exchange(results_[index], std::nullopt);
    }

private:
    std::size_t takeNext() {
        const std::lock_guard lock(mutex_);
        return next_ < results_.size() ? next_++ : next_;
    }

    const std::function<RenderResult(std::size_t)>& job_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::optional<RenderResult>> results_;
    std::size_t next_ = 0;
    std::size_t done_ = 0;
};

void runInTurn(std::size_t count, const std::function<RenderResult(std::size_t)>& job, const JobListener& listener) {
    for (std::size_t index = 0; index < count; ++index) {
        listener.report(index, job(index));
        listener.progress(index + 1);
    }
}

/// Tells the results in order while the workers run.
void reportInOrder(std::size_t count, JobQueue& queue, const JobListener& listener) {
    std::size_t done = 0;
    std::size_t reported = 0;
    while (reported < count) {
        done = queue.waitForMoreThan(done);
        for (auto result = queue.takeResult(reported); result; result = queue.takeResult(reported)) {
            listener.report(reported, *std::move(result));
            if (++reported == count) break;
        }
        listener.progress(std::max(done, reported));  // what ended meanwhile may be reported, too
    }
}

/// Up to `count` threads that work on the queue; fewer when the system gives no more.
std::vector<std::jthread> startWorkers(JobQueue& queue, std::size_t count) {
    std::vector<std::jthread> workers;
    workers.reserve(count);
    try {
        while (workers.size() < count) workers.emplace_back([&queue] { queue.work(); });
    } catch (const std::system_error&) {  // the threads that there are do it all
    }
    return workers;
}

}  // namespace

void runJobs(std::size_t count, unsigned threads, const std::function<RenderResult(std::size_t)>& job,
             const JobListener& listener) {
    JobQueue queue(count, job);
    std::vector<std::jthread> workers;
    if (threads > 1 && count > 1) workers = startWorkers(queue, std::min<std::size_t>(threads, count));
    if (workers.empty()) {
        runInTurn(count, job, listener);
    } else {
        reportInOrder(count, queue, listener);
    }
}

}  // namespace VEXA::Cli
