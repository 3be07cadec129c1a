#include <gtest/gtest.h>

#include "tests/engine/EngineTestTools.h"
#include "vexa/support/core/Limits.h"
#include "vexa/surfaces/NullSurface.h"

namespace VEXA::Testing {
namespace {

std::string repeat(const std::string& text, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

std::size_t countOf(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

std::string withStops(std::size_t count) {
    return rootWith(
        "theme='none' fill='url(#g)'",
        "<defs><linear-gradient id='g'>" + repeat("<stop offset='0.5'/>", count) + "</linear-gradient></defs>");
}

TEST(Limits, GradientStops) {
    CapturedLog log;
    EXPECT_EQ(countOf(draw(withStops(Limits::kGradientStops)), "\"offset\""), Limits::kGradientStops);
    EXPECT_EQ(log.codes(), "");
    EXPECT_EQ(countOf(draw(withStops(Limits::kGradientStops + 1)), "\"offset\""), Limits::kGradientStops);
    EXPECT_EQ(log.codes(), "34004");
}

std::string withDashes(std::size_t count) {
    return rootWith("theme='none' stroke='red' stroke-dasharray='" + repeat("7 ", count) + "'", "");
}

TEST(Limits, DashEntries) {
    CapturedLog log;
    EXPECT_EQ(countOf(draw(withDashes(Limits::kDashEntries)), "7,"), Limits::kDashEntries - 1);
    EXPECT_EQ(log.codes(), "");
    EXPECT_EQ(countOf(draw(withDashes(Limits::kDashEntries + 1)), "7,"), Limits::kDashEntries - 1);
    EXPECT_EQ(log.codes(), "34005");
}

TEST(Limits, QuotesOfReferences) {
    CapturedLog log;
    draw(rootWith("theme='none' fill='url(#" + std::string(5000, 'x') + ")'", ""));
    ASSERT_EQ(log.codes(), "34001");
    EXPECT_LT(log.records[0].message.length(), Limits::kQuotedCharacters + 120);
}

// Borrowed stops are shared: with a copy in each of three brushes this would take gigabytes.
TEST(Gradient, ManyBorrowersShareTheirStops) {
    std::string document =
        "<defs><linear-gradient id='s'>" + repeat("<stop/>", Limits::kGradientStops) + "</linear-gradient>";
    std::string series = "<spider-axis/>";
    for (int i = 0; i < 20'000; ++i) {
        const std::string id = "g" + std::to_string(i);
        document += "<linear-gradient id='" + id + "' href='#s'/>";
        series += "<spider-serie fill='url(#" + id + ")'/>";
    }
    const auto root = load(rootWith("theme='none'", document + "</defs><spider>" + series + "</spider>"));
    root->render(make<NullSurface>(), 800, 600);
}

}  // namespace
}  // namespace VEXA::Testing
