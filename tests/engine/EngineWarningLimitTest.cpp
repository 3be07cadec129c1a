#include <gtest/gtest.h>

#include "tests/engine/EngineTestTools.h"
#include "vexa/support/core/Limits.h"

namespace VEXA::Testing {
namespace {

std::string seriesWithoutGradient(std::size_t count, const std::string& unknownElement) {
    std::string content = "<spider-axis id='a'/>";
    for (std::size_t i = 0; i < count; ++i) content += "<spider-serie fill='url(#none)'/>" + unknownElement;
    return spiderWith("", content);
}

std::size_t warningsOf(const std::string& document) {
    CapturedLog log;
    draw(document);
    const bool endsWithNotice = !log.records.empty() && log.records.back().code == 3014;
    EXPECT_EQ(endsWithNotice, log.records.size() > Limits::kWarnings);
    return log.records.size();
}

TEST(Limits, WarningsOfADocument) {
    EXPECT_EQ(warningsOf(seriesWithoutGradient(Limits::kWarnings, "")), Limits::kWarnings);
    EXPECT_EQ(warningsOf(seriesWithoutGradient(Limits::kWarnings + 50, "")), Limits::kWarnings + 1)
        << "those of painting";
    EXPECT_EQ(warningsOf(seriesWithoutGradient(60, "<zz/>")), Limits::kWarnings + 1)
        << "those of reading and of painting together";
    EXPECT_EQ(warningsOf(seriesWithoutGradient(3, "")), 3U) << "the next document starts anew";
}

}  // namespace
}  // namespace VEXA::Testing
