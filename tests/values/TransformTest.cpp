#include "vexa/support/values/Transform.h"

#include <cmath>

#include "TextForm.h"

namespace VEXA {
namespace {

using namespace Testing;
using TransformList = Vector<Transform>;

TEST(Transform, Texts) {
    checkTexts<TransformList>({
        {"", "", "an empty list"},
        {" \n", "", "likewise"},
        {"matrix(1 0 0 1 10 20)", "matrix(1 0 0 1 10 20)", ""},
        {"matrix(1,0,0,1,10,20)", "matrix(1 0 0 1 10 20)", "commas"},
        {"matrix(1,0 0 ,1, 10 20)", "matrix(1 0 0 1 10 20)", "commas and white space mixed"},
        {"translate(10)", "translate(10 0)", "ty is 0"},
        {"translate(10px,-1cm)", "translate(10 -1cm)", "lengths"},
        {"translate(10-5)", "translate(10 -5)", "a sign parts numbers"},
        {"translate(.5.5)", "translate(0.5 0.5)", "so does a second point"},
        {"scale(2)", "scale(2 2)", "both directions"},
        {"scale(2, .5)", "scale(2 0.5)", ""},
        {"rotate(45)", "rotate(45 0 0)", "about the origin"},
        {"rotate(45 10 1in)", "rotate(45 10 1in)", "about a point"},
        {"skewX(30)", "skewX(30)", ""},
        {"skewY(-60)", "skewY(-60)", ""},
        {"skewX(0)", "skewX(0)", ""},
        {" translate ( 1 , 2 ) ", "translate(1 2)", "white space everywhere"},
        {"translate(1 2)rotate(3)", "translate(1 2) rotate(3 0 0)", "nothing between functions"},
        {"scale(2),scale(3) scale(4)", "scale(2 2) scale(3 3) scale(4 4)", "in the order given"},
        {"matrix(1 0 0 1 10)", kRefused, "five operands"},
        {"matrix(1 0 0 1 10 20 30)", kRefused, "seven"},
        {"translate()", kRefused, "no operand"},
        {"translate(1 2 3)", kRefused, "three"},
        {"rotate(45 10)", kRefused, "a centre has two coordinates"},
        {"skewX(1 2)", kRefused, "one angle"},
        {"translate(1,)", kRefused, "a comma without an operand"},
        {"translate(,1)", kRefused, "likewise"},
        {"translate(1,,2)", kRefused, "one comma"},
        {"translate(1 2", kRefused, "no closing bracket"},
        {"translate 1 2", kRefused, "no brackets"},
        {"translate(1 2),", kRefused, "a comma without a function"},
        {"translate(1 2),,scale(2)", kRefused, "one comma"},
        {"translate(10%)", kRefused, "no percentage"},
        {"rotate(45deg)", kRefused, "angles are numbers of degrees"},
        {"scale(2px)", kRefused, "a factor has no unit"},
        {"scale(1e39)", kRefused, "beyond what is drawn in single precision"},
        {"scale(nan)", kRefused, "finite numbers"},
        {"Translate(1 2)", kRefused, "names are written exactly"},
        {"skewx(30)", kRefused, "likewise"},
        {"spin(30)", kRefused, "no such function"},
    });
}

TEST(Transform, OperandsAreStoredByKind) {
    const auto list = parsed<TransformList>("matrix(1 2 3 4 5 6) translate(7 8) scale(9 10) rotate(11 12 13)");
    ASSERT_EQ(list.size(), 4U);
    EXPECT_EQ(list[0].kind, TransformKind::Matrix);
    EXPECT_EQ(list[0].numbers, (std::array<double, 6>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(list[1].kind, TransformKind::Translate);
    EXPECT_EQ(list[1].lengths, (std::array{Length(7), Length(8)}));
    EXPECT_EQ(list[2].kind, TransformKind::Scale);
    EXPECT_EQ(list[2].numbers[0], 9);
    EXPECT_EQ(list[2].numbers[1], 10);
    EXPECT_EQ(list[3].kind, TransformKind::Rotate);
    EXPECT_EQ(list[3].numbers[0], 11) << "degrees";
    EXPECT_EQ(list[3].lengths, (std::array{Length(12), Length(13)}));
}

TEST(Transform, SkewsAreStoredAsTangents) {
    struct Case {
        const char* text;
        double tangent;
        const char* why;
    };
    const Case cases[] = {
        {"skewX(45)", 1.0, ""},
        {"skewY(-45)", -1.0, ""},
        {"skewX(60)", std::sqrt(3.0), ""},
        {"skewX(225)", 1.0, "half a turn more is the same"},
        {"skewX(180)", 0.0, "exactly"},
        {"skewX(-1e30)", std::tan(std::fmod(-1e30, 180.0) / 180.0 * 3.14159265358979), "a turn too large to count"},
    };
    for (const Case& c : cases)
        EXPECT_NEAR(parsed<TransformList>(c.text)[0].numbers[0], c.tangent, 1e-6) << c.text << c.why;
    EXPECT_TRUE(std::isfinite(parsed<TransformList>("skewX(90)")[0].numbers[0]));
    EXPECT_EQ(parsed<TransformList>("skewX(45)")[0].kind, TransformKind::SkewX);
    EXPECT_EQ(parsed<TransformList>("skewY(45)")[0].kind, TransformKind::SkewY);
}

TEST(Transform, NumbersKeepDoublePrecision) {
    EXPECT_EQ(parsed<TransformList>("scale(0.1 123456789.5)")[0].numbers[0], 0.1);
    EXPECT_EQ(parsed<TransformList>("scale(0.1 123456789.5)")[0].numbers[1], 123456789.5);
}

TEST(Transform, SkewsAreWrittenAsTheAngleTheyCameFrom) {
    for (int tenths = -1799; tenths < 1800; tenths += 7) {
        const std::string text = "skewX(" + std::to_string(tenths / 10.0) + ")";
        const auto list = parsed<TransformList>(text);
        EXPECT_EQ(parsed<TransformList>(ValueTraits<TransformList>::print(list)), list) << text;
    }
}

}  // namespace
}  // namespace VEXA
