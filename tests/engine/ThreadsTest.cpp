#include <gtest/gtest.h>

#include <thread>

#include "tests/engine/EngineTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;

/// A radar chart of some size with gradients, captions and a title that wraps.
std::string chart(int axes) {
    std::string axisElements;
    std::string points;
    for (int i = 0; i < axes; ++i) {
        std::string id = std::to_string(i);
        id.insert(id.begin(), 'a');
        axisElements += "<spider-axis id=\"" + id + "\" caption=\"Axis " + std::to_string(i) + "\" stroke=\"#888\"/>";
        points += "<spider-data-point axis-id=\"" + id + "\" value=\"" + std::to_string(10 + i * 7 % 13) + "\"/>";
    }
    return rootWith(R"(font-size="11" theme="blue-gradient")",
                    "<title value=\"A chart of " + std::to_string(axes) +
                        " axes, drawn by one thread of eight\" width=\"120\"/>" + R"x(<spider fill="url(#g)">)x" +
                        axisElements + "<spider-serie fill=\"url(#g)\" opacity=\"0.5\">" + points +
                        "</spider-serie></spider>" +
                        R"(<defs><linear-gradient id="g"><stop offset="0" stop-color="#fff"/><stop offset="1"
                        stop-color="#48c"/></linear-gradient></defs>)");
}

TEST(Threads, EightDocumentsAtOnceGiveTheSameBytesAsOneAfterAnother) {
    constexpr int kThreads = 8;
    constexpr int kRounds = 20;
    std::vector<std::string> expected;
    for (int i = 0; i < kThreads; ++i) expected.push_back(draw(chart(3 + i)));

    std::vector<int> differences(kThreads, 0);
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < kThreads; ++i) {
            threads.emplace_back([&, i] {
                for (int round = 0; round < kRounds; ++round) {
                    if (draw(chart(3 + i)) != expected[i]) ++differences[i];
                }
            });
        }
    }
    EXPECT_EQ(differences, std::vector<int>(kThreads, 0));
}

TEST(Threads, WarningsStayWithTheirDocument) {
    constexpr int kThreads = 4;
    std::vector<std::string> told(kThreads);
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < kThreads; ++i) {
            threads.emplace_back([&told, i] {
                const CapturedLog log;
                draw(rootWith("", std::string(static_cast<std::size_t>(i), '\n') + "<pie/>"));
                for (const LogRecord& record : log.records) told[i] += std::to_string(record.place.line);
            });
        }
    }
    EXPECT_EQ(told, (std::vector<std::string>{"1", "2", "3", "4"}));
}

}  // namespace
}  // namespace VEXA
