#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "tests/load/MixedDocuments.h"

namespace VEXA::Testing {
namespace {

/// Documents for each thread: few in an ordinary run of the tests, VEXA_LOAD_DOCUMENTS in a long one.
std::size_t documentsPerThread() {
    const char* const wanted = std::getenv("VEXA_LOAD_DOCUMENTS");
    return wanted == nullptr ? 150 : std::strtoul(wanted, nullptr, 10);
}

TEST(Threads, DrawWhatOneThreadDraws) {
    constexpr std::size_t threads = 8;
    const std::size_t count = documentsPerThread();
    const MixedDocuments documents;
    std::vector<std::vector<std::size_t>> drawn(threads, std::vector<std::size_t>(count));
    const auto hashOf = [&](std::size_t i) { return std::hash<std::string>()(documents.render(i)); };
    {
        // All caches are empty, and the threads begin at different documents.
        std::vector<std::jthread> running;
        for (std::size_t thread = 0; thread < threads; ++thread) {
            running.emplace_back([&, thread] {
                for (std::size_t i = 0; i < count; ++i) {
                    const std::size_t document = (i + thread * count / threads) % count;
                    drawn[thread][document] = hashOf(document);
                }
            });
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t expected = hashOf(i);
        for (std::size_t thread = 0; thread < threads; ++thread)
            EXPECT_EQ(drawn[thread][i], expected) << "document " << i << " on thread " << thread;
    }
}

}  // namespace
}  // namespace VEXA::Testing
