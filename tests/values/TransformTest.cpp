#include "vexa/support/values/Transform.h"

#include <cmath>
#include <utility>
#include <vector>

#include "TextForm.h"

namespace VEXA {
namespace {

using namespace Testing;
using TransformList = Vector<Transform>;

TEST(Transform, Texts) {
    checkTexts<TransformList>({
        {"", "", "an empty list"},
        {"matrix(1 0 0 1 10 20)", "matrix(1 0 0 1 10 20)", ""},
        {"matrix(1,0 0 ,1, 10 20)", "matrix(1 0 0 1 10 20)", "commas and white space mixed"},
        {"translate(10)", "translate(10 0)", "ty is 0"},
        {"translate(10px,-1cm)", "translate(10 -1cm)", "lengths"},
        {"translate(10-5)", "translate(10 -5)", "a sign parts numbers"},
        {"translate(.5.5)", "translate(0.5 0.5)", "so does a second point"},
        {"scale(2)", "scale(2 2)", "both directions"},
        {"scale(0.1, 123456789.5)", "scale(0.1 123456789.5)", "double precision is kept"},
        {"rotate(45 10 1in)", "rotate(45 10 1in)", "about a point"},
        {"skewY(-60)", "skewY(-60)", "an angle again"},
        {"rotate(45)", "rotate(45 0 0)", "about the origin"},
        {" translate ( 1 , 2 ) ", "translate(1 2)", "white space everywhere"},
        {"translate(1 2)rotate(3)", "translate(1 2) rotate(3 0 0)", "nothing between functions"},
        {"scale(2),scale(3) scale(4)", "scale(2 2) scale(3 3) scale(4 4)", "in the order given"},
        {"matrix(1 0 0 1 10)", kRefused, "five operands"},
        {"translate(1 2 3)", kRefused, "three"},
        {"translate()", kRefused, "no operand"},
        {"rotate(45 10)", kRefused, "a centre has two coordinates"},
        {"skewX(1 2)", kRefused, "one angle"},
        {"translate(1 ,)", kRefused, "a comma without an operand"},
        {"translate(1,,2)", kRefused, "one comma"},
        {"translate(1 2", kRefused, "no closing bracket"},
        {"translate 1 2", kRefused, "no brackets"},
        {"translate(1 2),,scale(2)", kRefused, "one comma"},
        {"translate(10%)", kRefused, "no percentage"},
        {"rotate(45deg)", kRefused, "angles are numbers of degrees"},
        {"scale(2px)", kRefused, "a factor has no unit"},
        {"scale(1e39)", kRefused, "beyond what is drawn in single precision"},
        {"scale(nan)", kRefused, "finite numbers"},
        {"Translate(1 2)", kRefused, "names are written exactly"},
    });
}

TEST(Transform, OperandsAreStoredByKind) {
    const auto list =
        parsed<TransformList>("matrix(1 2 3 4 5 6) translate(7 8) scale(9 10) rotate(11 12 13) skewX(45) skewY(-45)");
    std::vector<TransformKind> kinds;
    for (const Transform& transform : list) kinds.push_back(transform.kind);
    using enum TransformKind;
    ASSERT_EQ(kinds, (std::vector{Matrix, Translate, Scale, Rotate, SkewX, SkewY}));
    EXPECT_EQ(list[0].numbers, (std::array<double, 6>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(list[1].lengths, (std::array{Length(7), Length(8)}));
    EXPECT_EQ(list[2].numbers[0], 9);
    EXPECT_EQ(list[2].numbers[1], 10);
    EXPECT_EQ(list[3].numbers[0], 11) << "degrees";
    EXPECT_EQ(list[3].lengths, (std::array{Length(12), Length(13)}));
}

TEST(Transform, SkewsAreStoredAsTangents) {
    const std::pair<const char*, double> cases[] = {
        {"skewX(45)", 1.0},
        {"skewY(-60)", -std::sqrt(3.0)},
        {"skewX(225)", 1.0},  // half a turn more is the same
        {"skewX(180)", 0.0},
        {"skewX(-1e30)", std::tan(std::fmod(-1e30, 180.0) / 180.0 * 3.14159265358979)},  // too large to count turns
    };
    for (const auto& [text, tangent] : cases) {
        EXPECT_NEAR(parsed<TransformList>(text)[0].numbers[0], tangent, 1e-6) << text;
    }
    EXPECT_TRUE(std::isfinite(parsed<TransformList>("skewX(90)")[0].numbers[0]));
}

TEST(Transform, SkewsAreWrittenAsTheAngleTheyCameFrom) {
    for (int tenths = -1799; tenths < 1800; tenths += 7) {
        const std::string text = "skewX(" + std::to_string(tenths) + "e-1)";
        const auto list = parsed<TransformList>(text);
        EXPECT_EQ(parsed<TransformList>(ValueTraits<TransformList>::print(list)), list) << text;
    }
}

}  // namespace
}  // namespace VEXA
