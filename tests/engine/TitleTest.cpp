#include <gtest/gtest.h>

#include "tests/engine/EngineTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;

/// The calls of a title in a page of 400 px by 300 px, without the root's background.
std::vector<DrawCall> titleCalls(const std::string& attributes) {
    const std::string page = R"(width="400" height="300" theme="none")";
    auto calls = drawingCalls(rootWith(page, "<title font-size=\"10\" " + attributes + "/>"));
    calls.erase(calls.begin());
    return calls;
}

TEST(Title, TextIsWrappedAndLinesStandBelowEachOther) {
    const FixedWidthFonts fonts;
    const auto calls = titleCalls(R"(value="alpha beta gamma" width="60" height="40" x="7" y="9")");
    ASSERT_EQ(calls.size(), 3U) << "the box and two lines of ten characters";
    EXPECT_EQ(calls[1].text, "alpha beta");
    EXPECT_EQ(calls[1].origin(), "0,10") << "one line height below the top";
    EXPECT_EQ(calls[2].text, "gamma");
    EXPECT_EQ(calls[2].origin(), "0,22") << "a descent of 2 px and another line";
    EXPECT_EQ(calls[2].transform, "1 0 0 1 7 9");
}

TEST(Title, LongWordsAreSplit) {
    const FixedWidthFonts fonts;
    const auto calls = titleCalls(R"(value="abcdefghijkl" width="60")");
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_EQ(calls[1].text, "abcdefghij");
    EXPECT_EQ(calls[2].text, "kl");
}

TEST(Title, BoxHasTheFillAndTheStrokeAndTheTextAColourOfItsOwn) {
    const auto calls =
        titleCalls(R"(value="Title" width="50%" height="30" fill="#111111" stroke="#222222" value-color="#333333")");
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].box(), "0,0 200 x 30") << "percentages are of the page";
    EXPECT_EQ(calls[0].fill, "#111111");
    EXPECT_EQ(calls[0].stroke, "#222222");
    EXPECT_EQ(calls[1].fill, "#333333");
    EXPECT_EQ(calls[1].stroke, "");
}

TEST(Title, TakesTheWholeWidthAndATenthOfTheHeightByDefault) {
    const auto calls = titleCalls(R"(value="Title")");
    EXPECT_EQ(calls.at(0).box(), "0,0 400 x 30");
    EXPECT_EQ(calls.at(1).fill, "#000000");
}

TEST(Title, IsCutAtItsBox) {
    const auto calls = titleCalls(R"(value="Title" width="60" height="30" x="7" y="9")");
    for (const DrawCall& call : calls) {
        ASSERT_EQ(call.clips.size(), 2U) << "the page's clip and its own";
        EXPECT_EQ(call.clips[1].points, "-1,-1 60,-1 60,30 -1,30") << "a pixel more at the top and the left";
        EXPECT_EQ(call.clips[1].transform, "1 0 0 1 7 9");
    }
}

TEST(Title, WithoutTextOnlyTheBoxIsPainted) {
    EXPECT_EQ(titleCalls("").size(), 1U);
    EXPECT_EQ(titleCalls(R"(value="Title" width="0")").size(), 1U) << "no room for text";
}

TEST(Title, SizesAreAnsweredAsGiven) {
    const auto root = load(rootWith("", R"(<title width="25%" height="2cm"/>)"));
    EXPECT_EQ(root->getTitle()->getWidth(), LengthOrPercent::percent(0.25F));
    EXPECT_EQ(root->getTitle()->getHeight(), LengthOrPercent(Length(2, LengthUnit::Cm)));
}

}  // namespace
}  // namespace VEXA
