#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <random>
#include <tuple>

#include "TextForm.h"
#include "vexa/support/values/AxisUnits.h"
#include "vexa/support/values/Length.h"
#include "vexa/support/values/SColor.h"
#include "vexa/support/values/Transform.h"
#include "vexa/support/values/ViewBox.h"

namespace VEXA {
namespace {

using namespace Testing;

// What each type refuses is told in tests/schema, where parser and schema judge the same texts.
TEST(BasicValues, AreWrittenAsTheyWouldBeInADocument) {
    checkTexts<bool>({
        {"false", "false", "the other one is below"},
        {"\t true\r\n", "true", "white space at both ends"},
    });
    checkTexts<float>({
        {"-12.50", "-12.5", "a sign, no idle zeros"},
        {"0.1", "0.1", "shortest text, not 0.100000001"},
        {"3.4028235e38", "3.4028235e+38", "largest float"},
        {"-1e-60", "0", "too small to tell from zero, of which no negative one is written"},
    });
    checkTexts<String>({
        {"  two  words ", "  two  words ", "white space belongs to a text"},
        {"\xC3\xBC {0}", "\xC3\xBC {0}", "beyond ASCII, and no template"},
    });
    checkTexts<AxisUnits>({
        {"automatic", "automatic", ""},
        {" days", "days", "white space at both ends"},
        {"months", "months", ""},
        {"years", "years", ""},
        {"0", "0", "the axis refuses it, not the text"},
    });
    EXPECT_EQ(parsed<AxisUnits>("1").getType(), AxisUnitsType::Number) << "1 is no ordinal";
    EXPECT_EQ(parsed<AxisUnits>("2.5").getNumber(), 2.5F);
    checkTexts<FloatOrPercent>({
        {"0.5", "0.5", ""},
        {"70%", "70%", "0.7 is no float"},
        {"250%", "250%", "out of 0 to 1 is legal here"},
    });
    EXPECT_EQ(parsed<FloatOrPercent>("50%").getValue(), 0.5F);
    EXPECT_NE(parsed<FloatOrPercent>("100%"), parsed<FloatOrPercent>("1")) << "which of them was given shows";
    checkTexts<Vector<SLength>>({
        {" 5 , 3,1mm ", "5 3 1mm", "commas and blanks, and units"},
        {"none", "none", "a solid line"},
        {"", "none", "an empty list"},
    });
    checkTexts<ViewBox>({{" 0-5 , 4cm 50% ", "0 -5 4cm 50%", "units, percentages, separators, a sign that parts"}});
    const auto box = parsed<ViewBox>("1 2 3 4");
    const std::array sides{box.x.pxSize(0), box.y.pxSize(0), box.width.pxSize(0), box.height.pxSize(0)};
    EXPECT_EQ(sides, (std::array{1.0F, 2.0F, 3.0F, 4.0F}));
}

TEST(Length, Texts) {
    constexpr TextCase kCases[] = {
        {"12.5px", "12.5", "px with it: the same value"},
        {"2pc", "2pc", ""},
        {"\n-3mm\t", "-3mm", "negative lengths are legal here; white space at both ends"},
        {"1in", "1in", "in is not 96px: another value"},
        {"1e2px", "100", "exponent before a unit"},
        {"1e-60mm", "0mm", "too small to tell from zero, the unit stays"},
        {"1e39px", kRefused, "beyond single precision"},
    };
    checkTexts<Length>(kCases);
    checkTexts<SLength>(kCases);
    checkTexts<SNullableLength>(kCases);
    EXPECT_TRUE(SNullableLength().isNull());
    EXPECT_NE(parsed<SNullableLength>("0"), SNullableLength()) << "0 was given";
    EXPECT_EQ(ValueTraits<SNullableLength>::print(SNullableLength()), "");
}

TEST(Length, PixelsOfEachUnit) {
    const std::tuple<const char*, float, const char*> cases[] = {
        {"72pt", 96.0F, "72 points to the inch"},
        {"6pc", 96.0F, "6 picas to the inch"},
        {"25.4mm", 96.0F, ""},
        {"2.54cm", 96.0F, ""},
        {"1in", 96.0F, "96 px to the inch"},
        {"3e38in", FLT_MAX, "finite, whatever the unit"},
        {"-3e38cm", -FLT_MAX, "on both sides"},
    };
    for (const auto& [text, px, why] : cases) EXPECT_FLOAT_EQ(parsed<Length>(text).pxSize(), px) << text << why;
}

TEST(LengthOrPercent, Texts) {
    constexpr TextCase kCases[] = {
        {"0%", "0%", "a percentage still"},
        {" 15% ", "15%", "0.15 is no float, 15 is what was meant"},
        {"3mm", "3mm", "a length"},
        {"1e40%", "1e+40%", "a number beyond single precision, but its fraction is within"},
        {"1e42%", kRefused, "here the fraction is not"},
    };
    checkTexts<LengthOrPercent>(kCases);
    checkTexts<SLengthOrPercent>(kCases);
    EXPECT_FLOAT_EQ(parsed<LengthOrPercent>("12.5%").pxSize(800), 100.0F);
    EXPECT_FLOAT_EQ(parsed<LengthOrPercent>("1in").pxSize(800), 96.0F) << "a length does not look at it";
    EXPECT_FLOAT_EQ(parsed<LengthOrPercent>("12.5%").getPercent(), 0.125F) << "as a fraction";
    EXPECT_TRUE(std::isfinite(parsed<LengthOrPercent>("1e40%").pxSize(800)));
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

// A message reads: "thick" is not <expectation>.
TEST(BasicValues, ExpectationsCompleteTheSentence) {
    EXPECT_EQ(ValueTraits<Length>::expectation(), "a length (write a number with px, pt, pc, mm, cm or in)");
    EXPECT_TRUE(ValueTraits<LengthOrPercent>::expectation().starts_with("a length or a percentage ("));
    EXPECT_TRUE(ValueTraits<FloatOrPercent>::expectation().starts_with("a number or a percentage ("));
    EXPECT_TRUE(ValueTraits<SmartPtr<Color>>::expectation().starts_with("a colour ("));
    EXPECT_TRUE(ValueTraits<Vector<Transform>>::expectation().starts_with("a transform list ("));
}

}  // namespace
}  // namespace VEXA
