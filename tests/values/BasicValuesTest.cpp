#include <span>

#include "TextForm.h"
#include "vexa/support/values/AxisUnits.h"
#include "vexa/support/values/Enumerations.h"
#include "vexa/support/values/Length.h"
#include "vexa/support/values/SColor.h"
#include "vexa/support/values/Transform.h"
#include "vexa/support/values/ViewBox.h"

namespace VEXA {
namespace {

using namespace Testing;

TEST(BasicValues, Booleans) {
    checkTexts<bool>({
        {"false", "false", "the other one is below"},
        {"\t true\r\n", "true", "white space at both ends"},
        {"True", kRefused, "keywords are written exactly"},
        {"1", kRefused, "not a bare number"},
        {"truefalse", kRefused, "nothing else left over"},
    });
}

TEST(BasicValues, Numbers) {
    checkTexts<float>({
        {"-12.50", "-12.5", "a sign, no idle zeros"},
        {"+3", "3", "a plus is allowed"},
        {".5", "0.5", "no digit before the point"},
        {"5.", "5", "no digit behind it"},
        {"2.5E-1", "0.25", "exponent, capital, negative"},
        {" 7 ", "7", "white space at both ends"},
        {"0.1", "0.1", "shortest text, not 0.100000001"},
        {"3.4028235e38", "3.4028235e+38", "largest float"},
        {"3.5e38", kRefused, "beyond single precision"},
        {"1e-60", "0", "too small to tell from zero"},
        {"-0", "0", "no negative zero is written"},
        {"1 2", kRefused, "one number"},
        {"1,5", kRefused, "no comma as a point"},
        {"50%", kRefused, "a percentage is no number"},
        {"5px", kRefused, "a length is no number"},
    });
}

TEST(BasicValues, TextsAreKeptAsTheyAre) {
    checkTexts<String>({
        {"", "", "empty"},
        {"  two  words ", "  two  words ", "white space belongs to a text"},
        {"\xC3\xBC \xE2\x82\xAC", "\xC3\xBC \xE2\x82\xAC", "beyond ASCII"},
        {"{0} %s", "{0} %s", "no template"},
    });
}

TEST(BasicValues, AxisUnits) {
    checkTexts<AxisUnits>({
        {"automatic", "automatic", ""},
        {" days", "days", "white space at both ends"},
        {"months", "months", ""},
        {"years", "years", ""},
        {"0", "0", "the axis refuses it, not the text"},
        {"number", kRefused, "a number is written as one"},
    });
    EXPECT_EQ(parsed<AxisUnits>("1").getType(), AxisUnitsType::Number) << "1 is no ordinal";
    EXPECT_EQ(parsed<AxisUnits>("2.5").getNumber(), 2.5F);
}

template <class T>
void expectRefused(std::span<const std::string_view> texts) {
    for (const auto text : texts) EXPECT_EQ(rewritten<T>(text), kRefused) << ValueTraits<T>::name() << ": " << text;
}

template <class... T>
void expectRefusedByEach(std::span<const std::string_view> texts) {
    (expectRefused<T>(texts), ...);
}

TEST(BasicValues, NothingAndNastyTextsAreRefused) {
    using Texts = std::span<const std::string_view>;
    for (const Texts texts : {Texts(kBlankTexts), Texts(kNastyTexts)}) {
        expectRefusedByEach<bool, float, AxisUnits, ViewBox, SmartPtr<Color>, SColor, SNullableColor, ChartTheme>(
            texts);
        expectRefusedByEach<Length, SLength, SNullableLength, LengthOrPercent, SLengthOrPercent, FloatOrPercent>(texts);
    }
    expectRefused<LabelsPosition>(kBlankTexts);
    expectRefusedByEach<Vector<SLength>, Vector<Transform>>(kNastyTexts);
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
