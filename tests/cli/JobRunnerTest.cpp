#include "cli/JobRunner.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace VEXA::Cli {
namespace {

/// Lets the jobs end in the reverse of their order: each waits for the one after it.
class ReverseOrder {
public:
    explicit ReverseOrder(std::size_t count) : turn_(count) {}

    void endOf(std::size_t index) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return turn_ == index + 1; });
        turn_ = index;
        changed_.notify_all();
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t turn_;
};

TEST(JobRunner, ReportsInTheOrderOfTheJobsWhateverTheOrderOfTheirEnds) {
    constexpr std::size_t kCount = 6;
    ReverseOrder order(kCount);
    std::string told;
    std::vector<std::size_t> seen;
    const auto job = [&](std::size_t index) {
        order.endOf(index);
        return RenderResult{index % 2 == 1, std::to_string(index)};
    };
    runJobs(kCount, kCount, job,
            {[&](std::size_t index, const RenderResult& result) {
                 EXPECT_EQ(result.failed, index % 2 == 1);
                 told += result.messages;
             },
             [&](std::size_t done) { seen.push_back(done); }});
    EXPECT_EQ(told, "012345");
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_EQ(seen.back(), kCount);
}

TEST(JobRunner, RunsEveryJobOnceOnNoMoreThreadsThanAllowed) {
    struct Case {
        std::size_t count;
        unsigned threads;
        const char* why;
    };
    const Case cases[] = {
        {0, 4, "nothing to do"},          {1, 4, "one job needs no thread"},  {3, 1, "one thread"},
        {2, 8, "more threads than jobs"}, {200, 3, "more jobs than threads"}, {5, 0, "an unknown number of cores"},
    };
    for (const Case& testCase : cases) {
        std::atomic<unsigned> running{0};
        std::atomic<unsigned> most{0};
        std::vector<std::atomic<int>> runs(testCase.count);
        std::size_t reports = 0;
        const auto job = [&](std::size_t index) {
            const unsigned now = ++running;
            for (unsigned seen = most; seen < now && !most.compare_exchange_weak(seen, now);) continue;
            ++runs[index];
            std::this_thread::yield();
            --running;
            return RenderResult{};
        };
        runJobs(testCase.count, testCase.threads, job,
                {[&](std::size_t index, const RenderResult&) { EXPECT_EQ(index, reports++) << testCase.why; },
                 [](std::size_t) {}});
        EXPECT_EQ(reports, testCase.count) << testCase.why;
        for (const auto& count : runs) EXPECT_EQ(count, 1) << testCase.why;
        EXPECT_LE(most, std::max(testCase.threads, 1U)) << testCase.why;
    }
}

}  // namespace
}  // namespace VEXA::Cli
