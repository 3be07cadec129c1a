#include <utility>

#include "TextForm.h"
#include "vexa/support/values/ColorText.h"
#include "vexa/support/values/SColor.h"

namespace VEXA {
namespace {

using namespace Testing;

TEST(Color, Texts) {
    constexpr TextCase kCases[] = {
        {"#1a2", "#11aa22", "every digit twice"},
        {"#8A2be2", "#8a2be2", "digits in any case"},
        {" #123456\n", "#123456", "white space at both ends"},
        {"rgb( 255 , 128 , 0 )", "#ff8000", "white space"},
        {"rgb(255 128 0)", "#ff8000", "white space instead of commas"},
        {"rgb(100%,50%,0%)", "#ff8000", "half of 255 is 127.5, rounded up"},
        {"rgb(300,-5,121)", "#ff0079", "out of range is cut to it"},
        {"rgb(120%,-1%,0.4%)", "#ff0001", "percentages too; 0.4% of 255 is 1.02"},
        {"rgb(1e9,1e-9,99.5)", "#ff0064", "rounded to nearest"},
        {"ReBeccaPurple", "#663399", "names in any case"},
        {"LightGoldenrodYellow", "#fafad2", "the longest name"},
        {"rgb(1,2,3) x", kRefused, "something left over"},
        {"rgb(nan,0,0)", kRefused, "finite numbers"},
        {"re", kRefused, "half a name"},
        {"lightgoldenrodyellowish", kRefused, "longer than any name"},
    };
    checkTexts<SmartPtr<Color>>(kCases);
    checkTexts<SColor>(kCases);
    checkTexts<SNullableColor>(kCases);
}

TEST(Color, NamesStandForTheirColours) {
    // The sixteen names of HTML 4, of which gray, maroon, purple and green are others in the X Window System; then the
    // first and the last of the table, and a "dark" gray that is lighter than gray.
    const std::pair<const char*, std::uint32_t> cases[] = {
        {"black", 0x000000},     {"silver", 0xC0C0C0},      {"gray", 0x808080},    {"white", 0xFFFFFF},
        {"maroon", 0x800000},    {"red", 0xFF0000},         {"purple", 0x800080},  {"fuchsia", 0xFF00FF},
        {"green", 0x008000},     {"lime", 0x00FF00},        {"olive", 0x808000},   {"yellow", 0xFFFF00},
        {"navy", 0x000080},      {"blue", 0x0000FF},        {"teal", 0x008080},    {"aqua", 0x00FFFF},
        {"aliceblue", 0xF0F8FF}, {"yellowgreen", 0x9ACD32}, {"darkgray", 0xA9A9A9}};
    for (const auto& [name, rgb] : cases) EXPECT_EQ(findColorName(name), rgb) << name;
    for (const std::string_view name :
         {"gray", "darkgray", "dimgray", "lightgray", "slategray", "darkslategray", "lightslategray"}) {
        std::string british(name);
        british[british.find("gray") + 2] = 'e';
        EXPECT_TRUE(findColorName(name) && findColorName(british) == findColorName(name)) << british;
    }
    EXPECT_EQ(findColorName("cyan"), findColorName("aqua"));
    EXPECT_EQ(findColorName("magenta"), findColorName("fuchsia"));
}

TEST(SColor, Texts) {
    constexpr TextCase kCases[] = {
        {"\tNONE ", "none", "in any case, as CSS"},
        {"URL(#Sky)", "url(#Sky)", "the id keeps its case"},
        {"url( \"#sky\" )", "url(#sky)", "quotes and white space"},
        {"url(#\xC3\xA9t\xC3\xA9)", "url(#\xC3\xA9t\xC3\xA9)", "an id beyond ASCII"},
        {"url(other.svg#sky)", "url(other.svg#sky)", "nothing will be found, which is for the look-up to say"},
        {"url(')", kRefused, "a quote alone"},
    };
    checkTexts<SColor>(kCases);
    checkTexts<SNullableColor>(kCases);
}

TEST(SColor, TellsItsKindAndIsEqualByValue) {
    EXPECT_EQ(parsed<SColor>("none").getType(), SColorType::None);
    EXPECT_EQ(parsed<SColor>("url(#sky)").getType(), SColorType::Url);
    EXPECT_EQ(parsed<SColor>("url(#sky)").getUrl(), String("#sky"));
    const auto red = parsed<SColor>("red");
    EXPECT_EQ(red.getType(), SColorType::Color);
    EXPECT_EQ(red.getColor()->rgb(), 0xFF0000U);
    EXPECT_EQ(parsed<SColor>("red"), parsed<SColor>("#f00")) << "two objects, one colour";
    EXPECT_NE(parsed<SColor>("red"), parsed<SColor>("#f01"));
    EXPECT_EQ(parsed<SColor>("url(#a)"), parsed<SColor>("url('#a')"));
    EXPECT_NE(parsed<SColor>("url(#a)"), parsed<SColor>("url(#b)"));
    EXPECT_TRUE(SNullableColor().isNull());
    EXPECT_NE(parsed<SNullableColor>("none"), SNullableColor());
    EXPECT_EQ(ValueTraits<SNullableColor>::print(SNullableColor()), "");
}

}  // namespace
}  // namespace VEXA
