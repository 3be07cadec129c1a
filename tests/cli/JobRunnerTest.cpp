#include "cli/JobRunner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

namespace VEXA::Cli {
namespace {

TEST(JobRunner, ReportsInTheOrderOfTheJobsWhateverTheOrderOfTheirEnds) {
    constexpr std::size_t kCount = 6;
    std::atomic<std::size_t> turn{kCount};  // the jobs end in the reverse of their order
    std::string told;
    std::vector<std::size_t> seen;
    const auto job = [&](std::size_t index) {
        for (std::size_t last = turn; last != index + 1; last = turn) turn.wait(last);
        turn = index;
        turn.notify_all();
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
    const std::tuple<std::size_t, unsigned, const char*> cases[] = {
        {0, 4, "nothing to do"},          {1, 4, "one job needs no thread"},  {3, 1, "one thread"},
        {2, 8, "more threads than jobs"}, {200, 3, "more jobs than threads"}, {5, 0, "an unknown number of cores"},
    };
    for (const auto& [count, threads, why] : cases) {
        std::atomic<unsigned> running{0};
        std::atomic<unsigned> most{0};
        std::vector<std::atomic<int>> runs(count);
        std::size_t reports = 0;
        const auto job = [&](std::size_t index) {
            const unsigned now = ++running;
            for (unsigned seen = most; seen < now && !most.compare_exchange_weak(seen, now);) continue;
            ++runs[index];
            std::this_thread::yield();
            --running;
            return RenderResult{};
        };
        runJobs(count, threads, job, {[&](std::size_t, const RenderResult&) { ++reports; }, [](std::size_t) {}});
        EXPECT_EQ(reports, count) << why;
        for (const auto& times : runs) EXPECT_EQ(times, 1) << why;
        EXPECT_LE(most, std::max(threads, 1U)) << why;
    }
}

}  // namespace
}  // namespace VEXA::Cli
