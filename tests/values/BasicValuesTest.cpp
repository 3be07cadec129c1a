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
        {"true", "true", ""},
        {"false", "false", ""},
        {"\t true\r\n", "true", "white space at both ends"},
        {"True", kRefused, "keywords are written exactly"},
        {"1", kRefused, "not a bare number"},
        {"yes", kRefused, "one way to say it"},
        {"truefalse", kRefused, "nothing else left over"},
    });
}

TEST(BasicValues, Numbers) {
    checkTexts<float>({
        {"0", "0", ""},
        {"-12.50", "-12.5", ""},
        {"+3", "3", "a plus is allowed"},
        {".5", "0.5", "no digit before the point"},
        {"5.", "5", "no digit behind it"},
        {"1e3", "1000", "exponent"},
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
        {"0x10", kRefused, "decimal only"},
        {"infinity", kRefused, "finite only"},
        {"NaN", kRefused, "finite only"},
        {"+-5", kRefused, "one sign"},
        {"- 5", kRefused, "the sign stands at its number"},
    });
}

TEST(BasicValues, TextsAreKeptAsTheyAre) {
    checkTexts<String>({
        {"", "", "empty"},
        {"  two  words ", "  two  words ", "white space belongs to a text"},
        {"Gr\xC3\xBC\xC3\x9F"
         "e \xE2\x82\xAC",
         "Gr\xC3\xBC\xC3\x9F"
         "e \xE2\x82\xAC",
         "beyond ASCII"},
        {"{0} %s", "{0} %s", "no template"},
    });
}

TEST(BasicValues, AxisUnits) {
    checkTexts<AxisUnits>({
        {"automatic", "automatic", ""},
        {" days", "days", "white space at both ends"},
        {"months", "months", ""},
        {"years", "years", ""},
        {"12.5", "12.5", "a number"},
        {"0", "0", "the axis refuses it, not the text"},
        {"-1", "-1", "likewise"},
        {"4", "4", "a number, not the ordinal of a type"},
        {"number", kRefused, "a number is written as one"},
        {"Days", kRefused, "keywords are written exactly"},
        {"2 days", kRefused, "a type has no number"},
    });
    EXPECT_EQ(parsed<AxisUnits>("1").getType(), AxisUnitsType::Number) << "1 is no ordinal";
    EXPECT_EQ(parsed<AxisUnits>("2.5").getNumber(), 2.5F);
    EXPECT_EQ(parsed<AxisUnits>("months").getType(), AxisUnitsType::Months);
}

template <class T>
void expectRefusesBlankTexts() {
    for (const std::string_view text : kBlankTexts) EXPECT_EQ(rewritten<T>(text), kRefused) << ValueTraits<T>::name();
}

TEST(BasicValues, NothingIsNoValueOfMostTypes) {
    expectRefusesBlankTexts<bool>();
    expectRefusesBlankTexts<float>();
    expectRefusesBlankTexts<AxisUnits>();
    expectRefusesBlankTexts<Length>();
    expectRefusesBlankTexts<SLength>();
    expectRefusesBlankTexts<SNullableLength>();
    expectRefusesBlankTexts<LengthOrPercent>();
    expectRefusesBlankTexts<SLengthOrPercent>();
    expectRefusesBlankTexts<FloatOrPercent>();
    expectRefusesBlankTexts<ViewBox>();
    expectRefusesBlankTexts<SmartPtr<Color>>();
    expectRefusesBlankTexts<SColor>();
    expectRefusesBlankTexts<SNullableColor>();
    expectRefusesBlankTexts<LabelsPosition>();
    expectRefusesBlankTexts<ChartTheme>();
}

template <class T>
void expectRefusesNastyTexts() {
    for (const std::string_view text : kNastyTexts) {
        EXPECT_EQ(rewritten<T>(text), kRefused) << ValueTraits<T>::name() << ": \"" << text << '"';
    }
}

TEST(BasicValues, NastyTextsAreRefusedByEveryType) {
    expectRefusesNastyTexts<bool>();
    expectRefusesNastyTexts<float>();
    expectRefusesNastyTexts<AxisUnits>();
    expectRefusesNastyTexts<Length>();
    expectRefusesNastyTexts<SLength>();
    expectRefusesNastyTexts<SNullableLength>();
    expectRefusesNastyTexts<LengthOrPercent>();
    expectRefusesNastyTexts<SLengthOrPercent>();
    expectRefusesNastyTexts<FloatOrPercent>();
    expectRefusesNastyTexts<ViewBox>();
    expectRefusesNastyTexts<SmartPtr<Color>>();
    expectRefusesNastyTexts<SColor>();
    expectRefusesNastyTexts<SNullableColor>();
    expectRefusesNastyTexts<Vector<SLength>>();
    expectRefusesNastyTexts<Vector<Transform>>();
}

// A message reads: "thick" is not <expectation>.
TEST(BasicValues, ExpectationsCompleteTheSentence) {
    EXPECT_EQ(ValueTraits<bool>::expectation(), "true or false");
    EXPECT_EQ(ValueTraits<Length>::expectation(), "a length (write a number with px, pt, pc, mm, cm or in)");
    EXPECT_TRUE(ValueTraits<LengthOrPercent>::expectation().starts_with("a length or a percentage ("));
    EXPECT_TRUE(ValueTraits<FloatOrPercent>::expectation().starts_with("a number or a percentage ("));
    EXPECT_TRUE(ValueTraits<SmartPtr<Color>>::expectation().starts_with("a colour ("));
    EXPECT_TRUE(ValueTraits<Vector<Transform>>::expectation().starts_with("a transform list ("));
}

}  // namespace
}  // namespace VEXA
