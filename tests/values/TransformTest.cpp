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
        {"matrix(1,0 0 ,1, 10 20)", "matrix(1 0 0 1 10 20)", "commas and white space mixed"},
        {"translate(10)", "translate(10 0)", "ty is 0"},
        {"translate(10px-1cm)", "translate(10 -1cm)", "lengths, which a sign parts"},
        {"translate(.5.5)", "translate(0.5 0.5)", "so does a second point"},
        {"scale(2)", "scale(2 2)", "both directions"},
        {"scale(0.1, 123456789.5)", "scale(0.1 123456789.5)", "double precision is kept"},
        {"rotate(45)", "rotate(45 0 0)", "about the origin"},
        {"rotate(45 10 1in)", "rotate(45 10 1in)", "about a point"},
        {"skewY(-60)", "skewY(-60)", "an angle again"},
        {" scale ( 2 ) ,rotate(3)skewX(4)", "scale(2 2) rotate(3 0 0) skewX(4)", "in the order given"},
        {"scale(1e39)", kRefused, "beyond what is drawn in single precision"},
    });
}

TEST(Transform, NamesStandForTheirKinds) {
    const auto list = parsed<TransformList>("matrix(1 2 3 4 5 6) translate(7) scale(8) rotate(9) skewX(45) skewY(-45)");
    std::vector<TransformKind> kinds;
    for (const Transform& transform : list) kinds.push_back(transform.kind);
    using enum TransformKind;
    EXPECT_EQ(kinds, (std::vector{Matrix, Translate, Scale, Rotate, SkewX, SkewY}));
    EXPECT_EQ(list[0].numbers, (std::array<double, 6>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(list[3].numbers[0], 9) << "degrees";
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
