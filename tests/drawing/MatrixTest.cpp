#include "vexa/support/drawing/Matrix.h"

#include <gtest/gtest.h>

#include <limits>

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

struct MatrixCase {
    const char* why;
    Matrix matrix;
    std::array<float, 6> elements;
};

class MatrixElements : public testing::TestWithParam<MatrixCase> {};

TEST_P(MatrixElements, AreThoseWorkedOutByHand) {
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_FLOAT_EQ(GetParam().matrix.getElements()[i], GetParam().elements[i])
            << GetParam().why << ", element " << i;
    }
}

Matrix start() { return {}; }

INSTANTIATE_TEST_SUITE_P(
    Operations, MatrixElements,
    testing::Values(
        MatrixCase{"nothing done is the identity", start(), {1, 0, 0, 1, 0, 0}},
        MatrixCase{"translations add up", start().translate(3, 4).translate(10, 20), {1, 0, 0, 1, 13, 24}},
        MatrixCase{"what is added last comes first: the scale enlarges the translation after it",
                   start().scale(2, 3).translate(10, 20),
                   {2, 0, 0, 3, 20, 60}},
        MatrixCase{"and leaves the one before it", start().translate(10, 20).scale(2, 3), {2, 0, 0, 3, 10, 20}},
        MatrixCase{"a quarter turns x to y, downward", start().rotate(90), {0, 1, -1, 0, 0, 0}},
        MatrixCase{"the other way round", start().rotate(-90), {0, -1, 1, 0, 0, 0}},
        MatrixCase{"a half turn leaves no trace of sin π", start().rotate(180), {-1, 0, 0, -1, 0, 0}},
        MatrixCase{"full turns do not count: 3690 = 10 x 360 + 90", start().rotate(3690), {0, 1, -1, 0, 0, 0}},
        MatrixCase{"a full turn the other way is the identity", start().rotate(-360), {1, 0, 0, 1, 0, 0}},
        MatrixCase{"sine 1/2, cosine √3/2", start().rotate(30), {0.8660254F, 0.5F, -0.5F, 0.8660254F, 0, 0}},
        MatrixCase{"an infinite angle does not turn", start().rotate(kInfinity), {1, 0, 0, 1, 0, 0}},
        MatrixCase{"nor does one that is no number", start().rotate(kNaN), {1, 0, 0, 1, 0, 0}},
        MatrixCase{"about (10, 20): x' = 10 - (y - 20), y' = 20 + (x - 10)",
                   start().rotateAt(90, {10, 20}),
                   {0, 1, -1, 0, 30, 10}},
        MatrixCase{"a skew along x moves x by its tangent times y", start().shear(0.5F, 0), {1, 0, 0.5F, 1, 0, 0}},
        MatrixCase{"a skew along y moves y by its tangent times x", start().shear(0, 0.25F), {1, 0.25F, 0, 1, 0, 0}},
        MatrixCase{
            "the product of two full matrices, row by row",
            Matrix(1, 2, 3, 4, 5, 6).multiply({7, 8, 9, 10, 11, 12}),
            {1 * 7 + 3 * 8, 2 * 7 + 4 * 8, 1 * 9 + 3 * 10, 2 * 9 + 4 * 10, 1 * 11 + 3 * 12 + 5, 2 * 11 + 4 * 12 + 6}},
        MatrixCase{"multiplied by itself, elements are not read after they were written",
                   Matrix(2, 0, 1, 1, 3, 0).multiply({2, 0, 1, 1, 3, 0}),
                   {4, 0, 3, 1, 9, 0}}));

TEST(Matrix, TakesPointsFromTheInnerSpaceToTheOuter) {
    const Matrix matrix = Matrix().translate(100, 50).rotate(90).scale(2, 3);
    EXPECT_EQ(matrix.apply({0, 0}), (PointF{100, 50}));
    EXPECT_EQ(matrix.apply({1, 0}), (PointF{100, 52})) << "x scaled by 2, then turned downward";
    EXPECT_EQ(matrix.apply({0, 1}), (PointF{97, 50})) << "y scaled by 3, then turned to the left";
}

TEST(Matrix, KnowsItsKind) {
    EXPECT_TRUE(Matrix().isIdentity());
    EXPECT_FALSE(Matrix().translate(0.001F, 0).isIdentity());
    EXPECT_TRUE(Matrix().translate(1, 2).scale(-3, 4).isScaleAndTranslate());
    EXPECT_FALSE(Matrix().rotate(90).isScaleAndTranslate());
    EXPECT_TRUE(Matrix().isFinite());
    EXPECT_FALSE(Matrix().scale(kInfinity, 1).isFinite());
    EXPECT_FALSE(Matrix().translate(0, kNaN).isFinite());
}

}  // namespace
}  // namespace VEXA
