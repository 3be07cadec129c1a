#include <thread>

#include "tests/engine/EngineTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;

/// A radar chart of some size with gradients, captions and a title that wraps.
std::string chart(int axes) {
    std::string content;
    std::string points;
    for (int i = 0; i < axes; ++i) {
        const std::string id = std::to_string(i);
        content += "<spider-axis id='" + id + "' caption='Axis " + id + "' stroke='#888'/>";
        points += "<spider-data-point axis-id='" + id + "' value='" + std::to_string(10 + i * 7 % 13) + "'/>";
    }
    content += "<spider-serie fill='url(#g)' opacity='0.5'>" + points + "</spider-serie>";
    return rootWith("font-size='11' theme='blue-gradient'",
                    "<title value='A chart drawn by one thread of eight' width='120'/><spider fill='url(#g)'>" +
                        content +
                        "</spider><defs><linear-gradient id='g'><stop offset='0' stop-color='#fff'/><stop/>"
                        "</linear-gradient></defs>");
}

/// Calls with 0, 1, … at once.
template <class Call>
void onThreads(int count, Call call) {
    std::vector<std::jthread> threads;
    for (int i = 0; i < count; ++i) threads.emplace_back(call, i);
}

TEST(Threads, EightDocumentsAtOnceGiveTheSameBytesAsOneAfterAnother) {
    std::vector<std::string> expected;
    for (int i = 0; i < 8; ++i) expected.push_back(draw(chart(3 + i)));
    std::vector<int> differences(8, 0);
    onThreads(8, [&](int i) {
        for (int round = 0; round < 20; ++round) differences[i] += draw(chart(3 + i)) != expected[i] ? 1 : 0;
    });
    EXPECT_EQ(differences, std::vector<int>(8, 0));
}

TEST(Threads, WarningsStayWithTheirDocument) {
    std::vector<std::string> told(4);
    onThreads(4, [&](int i) {
        const CapturedLog log;
        draw(rootWith("", std::string(static_cast<std::size_t>(i), '\n') + "<pie/>"));
        for (const LogRecord& record : log.records) told[i] += std::to_string(record.place.line);
    });
    EXPECT_EQ(told, (std::vector<std::string>{"1", "2", "3", "4"}));
}

}  // namespace
}  // namespace VEXA
