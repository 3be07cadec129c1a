#include "tests/engine/EngineTestTools.h"

namespace VEXA {
namespace {

using namespace Testing;

/// The calls of a title in a page of 400 px by 300 px, without the root's background.
std::vector<DrawCall> titleCalls(const std::string& attributes) {
    const WithFonts fonts;
    const std::string page = "width='400' height='300' theme='none'";
    auto calls = drawingCalls(rootWith(page, "<title font-size='10' " + attributes + "/>"));
    calls.erase(calls.begin());
    return calls;
}

TEST(Title, TextIsWrappedAndCutInItsBox) {
    const auto calls = titleCalls("value='alpha abcdefghijkl' width='60' height='40' x='7' y='9'");
    ASSERT_EQ(calls.size(), 4U) << "the box and three lines of ten characters";
    EXPECT_EQ(calls[1].text + '|' + calls[2].text + '|' + calls[3].text, "alpha |abcdefghij|kl") << "long words too";
    EXPECT_EQ(calls[1].origin, "0,10") << "one line height below the top";
    EXPECT_EQ(calls[2].origin, "0,22") << "a descent of 2 px and another line";
    for (const DrawCall& call : calls) {
        EXPECT_EQ(call.transform, "1 0 0 1 7 9");
        ASSERT_EQ(call.clips.size(), 2U) << "the page's clip and its own";
        EXPECT_EQ(call.clips[1], "-1,-1 60,-1 60,40 -1,40 | 1 0 0 1 7 9") << "a pixel more at the top and the left";
    }
}

TEST(Title, BoxHasTheFillAndTheStrokeAndTheTextAColourOfItsOwn) {
    const auto calls = titleCalls("value='T' width='50%' height='30' fill='#111' stroke='#222' value-color='#333'");
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].box, "0,0 200 x 30") << "percentages are of the page";
    EXPECT_EQ(calls[0].fill + calls[0].stroke, "#111111#222222");
    EXPECT_EQ(calls[1].fill + calls[1].stroke, "#333333");
    const auto plain = titleCalls("value='Title'");
    EXPECT_EQ(plain.at(0).box, "0,0 400 x 30") << "the whole width and a tenth of the height";
    EXPECT_EQ(plain.at(1).fill, "#000000");
    EXPECT_EQ(titleCalls("").size(), 1U) << "only the box without a text";
    EXPECT_EQ(titleCalls("value='Title' width='0'").size(), 1U) << "no room for text";
    const auto root = load(rootWith("", "<title width='25%' height='2cm'/>"));
    EXPECT_EQ(root->getTitle()->getWidth(), LengthOrPercent::percent(0.25F));
    EXPECT_EQ(root->getTitle()->getHeight(), LengthOrPercent(Length(2, LengthUnit::Cm)));
}

}  // namespace
}  // namespace VEXA
