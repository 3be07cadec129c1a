#include "vexa/support/values/Length.h"

#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <random>
#include <tuple>

#include "TextForm.h"
#include "vexa/support/values/ViewBox.h"

namespace VEXA {
namespace {

using namespace Testing;

TEST(Length, Texts) {
    constexpr TextCase kCases[] = {
        {"12.5px", "12.5", "px with it: the same value"},
        {"2pc", "2pc", ""},
        {"-3mm", "-3mm", "negative lengths are legal here"},
        {"1in", "1in", "in is not 96px: another value"},
        {"\n 4px\t", "4", "white space at both ends"},
        {"1e2px", "100", "exponent before a unit"},
        {"1e-60mm", "0mm", "too small to tell from zero, the unit stays"},
        {"4PX", kRefused, "units in lower case"},
        {"4p", kRefused, "half a unit"},
        {"4pxx", kRefused, "more than a unit"},
        {"50%", kRefused, "a percentage is no length"},
        {"4px 5px", kRefused, "one length"},
        {"1e39px", kRefused, "beyond single precision"},
    };
    checkTexts<Length>(kCases);
    checkTexts<SLength>(kCases);
    checkTexts<SNullableLength>(kCases);
}

TEST(Length, PixelsOfEachUnit) {
    const std::tuple<const char*, float, const char*> cases[] = {
        {"72pt", 96.0F, "72 points to the inch"},
        {"6pc", 96.0F, "6 picas to the inch"},
        {"25.4mm", 96.0F, ""},
        {"2.54cm", 96.0F, ""},
        {"1in", 96.0F, "96 px to the inch"},
        {"-1.5pt", -2.0F, "negative too"},
        {"3e38in", FLT_MAX, "finite, whatever the unit"},
        {"-3e38cm", -FLT_MAX, "on both sides"},
    };
    for (const auto& [text, px, why] : cases) EXPECT_FLOAT_EQ(parsed<Length>(text).pxSize(), px) << text << why;
}

TEST(Length, NotSetIsNoLength) {
    EXPECT_TRUE(SNullableLength().isNull());
    EXPECT_NE(parsed<SNullableLength>("0"), SNullableLength()) << "0 was given";
    EXPECT_EQ(ValueTraits<SNullableLength>::print(SNullableLength()), "");
}

TEST(LengthOrPercent, Texts) {
    constexpr TextCase kCases[] = {
        {"12.5%", "12.5%", ""},
        {"0%", "0%", "a percentage still"},
        {"15%", "15%", "0.15 is no float, 15 is what was meant"},
        {" 10% ", "10%", "white space at both ends"},
        {"3mm", "3mm", "a length"},
        {"1e40%", "1e+40%", "a number beyond single precision, but its fraction is within"},
        {"1e42%", kRefused, "here the fraction is not"},
        {"10 %", kRefused, "the sign stands at its number"},
        {"10px%", kRefused, "either or"},
    };
    checkTexts<LengthOrPercent>(kCases);
    checkTexts<SLengthOrPercent>(kCases);
}

TEST(LengthOrPercent, ResolvesAgainstItsReference) {
    EXPECT_FLOAT_EQ(parsed<LengthOrPercent>("12.5%").pxSize(800), 100.0F);
    EXPECT_FLOAT_EQ(parsed<LengthOrPercent>("1in").pxSize(800), 96.0F) << "a length does not look at it";
    EXPECT_FLOAT_EQ(parsed<LengthOrPercent>("12.5%").getPercent(), 0.125F) << "as a fraction";
    EXPECT_TRUE(std::isfinite(parsed<LengthOrPercent>("1e40%").pxSize(800)));
}

TEST(FloatOrPercent, Texts) {
    checkTexts<FloatOrPercent>({
        {"0.5", "0.5", ""},
        {"50%", "50%", "the same number, another value"},
        {"70%", "70%", "0.7 is no float"},
        {" 100%\n", "100%", "white space at both ends"},
        {"250%", "250%", "out of 0 to 1 is legal here"},
        {"0.5px", kRefused, "no length"},
    });
    EXPECT_EQ(parsed<FloatOrPercent>("50%").getValue(), 0.5F);
    EXPECT_NE(parsed<FloatOrPercent>("100%"), parsed<FloatOrPercent>("1")) << "which of them was given shows";
}

TEST(DashPattern, Texts) {
    checkTexts<Vector<SLength>>({
        {"5 3", "5 3", ""},
        {" 5 , 3,1mm ", "5 3 1mm", "both, and units"},
        {"0 0", "0 0", "zeros are legal; nothing is dashed by them"},
        {"none", "none", "a solid line"},
        {"", "none", "an empty list"},
        {"5 -3", kRefused, "a dash is not negative"},
        {"5,,3", kRefused, "one comma"},
        {"5,3,", kRefused, "a comma at the end"},
        {",5", kRefused, "a comma at the start"},
        {"5px3px", kRefused, "entries are kept apart"},
        {"5 none", kRefused, "none stands alone"},
        {"5%", kRefused, "no percentage"},
    });
}

TEST(ViewBox, Texts) {
    checkTexts<ViewBox>({
        {"0 0 400 300", "0 0 400 300", ""},
        {" 0 , 0 4cm 50% ", "0 0 4cm 50%", "units, percentages, mixed separators"},
        {"0-5 10 10", "0 -5 10 10", "a sign parts numbers"},
        {"0 0 400", kRefused, "three"},
        {"0 0 400 300 1", kRefused, "five"},
        {"0 0 400 300,", kRefused, "a comma at the end"},
    });
    const auto box = parsed<ViewBox>("1 2 3 4");
    const std::array sides{box.x.pxSize(0), box.y.pxSize(0), box.width.pxSize(0), box.height.pxSize(0)};
    EXPECT_EQ(sides, (std::array{1.0F, 2.0F, 3.0F, 4.0F}));
}

// Every bit pattern is as likely as any other, so that all magnitudes occur.
TEST(Length, WhatIsWrittenIsReadAgain) {
    std::mt19937 random(1);
    for (int i = 0; i < 20'000; ++i) {
        const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(number)) continue;
        const Length length(number, static_cast<LengthUnit>(i % 6));
        EXPECT_EQ(parsed<Length>(ValueTraits<Length>::print(length)), length);
        const auto percent = LengthOrPercent::percent(number);
        EXPECT_EQ(parsed<LengthOrPercent>(ValueTraits<LengthOrPercent>::print(percent)), percent);
    }
}

}  // namespace
}  // namespace VEXA
