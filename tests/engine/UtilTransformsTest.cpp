#include <gtest/gtest.h>

#include <limits>

#include "vexa/util/Util.h"

namespace VEXA {
namespace {

Transform transform(TransformKind kind, std::array<double, 6> numbers, Length x = Length(), Length y = Length()) {
    return {kind, numbers, {x, y}};
}

PointF moved(const Vector<Transform>& list, PointF point) {
    Matrix matrix;
    Util::addTransformationList(matrix, list);
    return matrix.apply(point);
}

TEST(UtilTransforms, EachKindMovesAPointAsInSvg) {
    using enum TransformKind;
    const struct {
        Transform transform;
        PointF point;
        PointF expected;
        const char* why;
    } cases[] = {
        {transform(TransformKind::Matrix, {2, 3, 5, 7, 11, 13}),
         {1, 10},
         {2 + 50 + 11, 3 + 70 + 13},
         "ax + cy + e, bx + dy + f"},
        {transform(Translate, {}, Length(3, LengthUnit::Pt), Length(-1)), {1, 1}, {5, 0}, "lengths in px: 3 pt are 4"},
        {transform(Scale, {2, -3}), {4, 5}, {8, -15}, "two factors"},
        {transform(Rotate, {90}, Length(10), Length(0)), {11, 0}, {10, 1}, "clockwise on the screen about (10, 0)"},
        {transform(SkewX, {0.5}), {1, 4}, {3, 4}, "half of y to the right"},
        {transform(SkewY, {0.5}), {4, 1}, {4, 3}, "half of x down"},
        {transform(None, {9, 9, 9, 9, 9, 9}), {1, 2}, {1, 2}, "no kind"},
        {transform(static_cast<TransformKind>(7), {9, 9, 9, 9, 9, 9}), {1, 2}, {1, 2}, "an unknown kind"},
    };
    for (const auto& c : cases) {
        const PointF point = moved({c.transform}, c.point);
        EXPECT_NEAR(point.x, c.expected.x, 1e-5F) << c.why;
        EXPECT_NEAR(point.y, c.expected.y, 1e-5F) << c.why;
    }
}

TEST(UtilTransforms, TheLastOfAListComesFirstToThePoint) {
    const Transform shift = transform(TransformKind::Translate, {}, Length(10), Length(20));
    const Transform scale = transform(TransformKind::Scale, {2, 3});
    EXPECT_EQ(moved({shift, scale}, {1, 1}), (PointF{12, 23}));
    EXPECT_EQ(moved({scale, shift}, {1, 1}), (PointF{22, 63}));
}

TEST(UtilTransforms, AListMultipliesIntoTheMatrixItGets) {
    Matrix matrix(1, 0, 0, 1, 100, 0);
    Util::addTransformationList(matrix, {});
    EXPECT_EQ(matrix, Matrix(1, 0, 0, 1, 100, 0)) << "an empty list";
    Util::addTransformationList(matrix, {transform(TransformKind::Scale, {2, 2})});
    EXPECT_EQ(matrix.apply({1, 1}), (PointF{102, 2}));
}

TEST(UtilTransforms, NumbersBeyondSinglePrecisionAreCut) {
    Matrix matrix;
    Util::addTransformationList(matrix, {transform(TransformKind::Scale, {1e300, -1e300})});
    constexpr float largest = std::numeric_limits<float>::max();
    EXPECT_EQ(matrix, Matrix(largest, 0, 0, -largest, 0, 0));
}

}  // namespace
}  // namespace VEXA
