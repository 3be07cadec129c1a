#include "vexa/support/drawing/Matrix.h"

#include <gtest/gtest.h>

#include <limits>

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(Matrix, HasTheElementsWorkedOutByHand) {
    struct Case {
        const char* why;
        Matrix matrix;
        std::array<float, 6> elements;
    };
    const auto start = [] { return Matrix(); };
    const Case cases[] = {
        {"translations add up", start().translate(3, 4).translate(10, 20), {1, 0, 0, 1, 13, 24}},
        {"what is added last comes first", start().scale(2, 3).translate(10, 20), {2, 0, 0, 3, 20, 60}},
        {"a quarter turns x to y, downward", start().rotate(90), {0, 1, -1, 0, 0, 0}},
        {"the other way round", start().rotate(-90), {0, -1, 1, 0, 0, 0}},
        {"a half turn leaves no trace of sin π", start().rotate(180), {-1, 0, 0, -1, 0, 0}},
        {"full turns do not count: 3690 = 10 x 360 + 90", start().rotate(3690), {0, 1, -1, 0, 0, 0}},
        {"sine 1/2, cosine √3/2", start().rotate(30), {0.8660254F, 0.5F, -0.5F, 0.8660254F, 0, 0}},
        {"an infinite angle does not turn", start().rotate(kInfinity), {1, 0, 0, 1, 0, 0}},
        {"nor does one that is no number", start().rotate(kNaN), {1, 0, 0, 1, 0, 0}},
        {"x' = 10 - (y - 20), y' = 20 + (x - 10)", start().rotateAt(90, {10, 20}), {0, 1, -1, 0, 30, 10}},
        {"a skew along x moves x, one along y moves y", start().shear(0.5F, 0.25F), {1, 0.25F, 0.5F, 1, 0, 0}},
        // 1 x 7 + 3 x 8, 2 x 7 + 4 x 8, 1 x 9 + 3 x 10, 2 x 9 + 4 x 10, 1 x 11 + 3 x 12 + 5, 2 x 11 + 4 x 12 + 6
        {"row by row", Matrix(1, 2, 3, 4, 5, 6).multiply({7, 8, 9, 10, 11, 12}), {31, 46, 39, 58, 52, 76}},
    };
    for (const Case& c : cases) {
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_FLOAT_EQ(c.matrix.getElements()[i], c.elements[i]) << c.why << ", element " << i;
        }
    }
}

TEST(Matrix, TakesPointsFromTheInnerSpaceToTheOuter) {
    const Matrix matrix = Matrix().translate(100, 50).rotate(90).scale(2, 3);
    EXPECT_EQ(matrix.apply({0, 0}), (PointF{100, 50}));
    EXPECT_EQ(matrix.apply({1, 0}), (PointF{100, 52})) << "x scaled by 2, then turned downward";
    EXPECT_EQ(matrix.apply({0, 1}), (PointF{97, 50})) << "y scaled by 3, then turned to the left";
}

TEST(Matrix, KnowsItsKind) {
    EXPECT_TRUE(Matrix().isIdentity() && !Matrix().translate(0.001F, 0).isIdentity());
    EXPECT_TRUE(Matrix().translate(1, 2).scale(-3, 4).isScaleAndTranslate() && Matrix().isFinite());
    EXPECT_FALSE(Matrix().rotate(90).isScaleAndTranslate());
    EXPECT_FALSE(Matrix().scale(kInfinity, 1).isFinite() || Matrix().translate(0, kNaN).isFinite());
}

}  // namespace
}  // namespace VEXA
