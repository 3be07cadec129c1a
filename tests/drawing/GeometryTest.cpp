#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <tuple>

#include "vexa/support/drawing/Matrix.h"
#include "vexa/support/drawing/Path.h"

namespace VEXA {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(Matrix, HasTheElementsWorkedOutByHand) {
    const auto start = [] { return Matrix(); };
    const std::tuple<const char*, Matrix, std::array<float, 6>> cases[] = {
        {"what is added last comes first", start().scale(2, 3).translate(10, 20), {2, 0, 0, 3, 20, 60}},
        {"a quarter turns x to y, downward", start().rotate(90), {0, 1, -1, 0, 0, 0}},
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
    for (const auto& [why, matrix, elements] : cases) {
        for (std::size_t i = 0; i < 6; ++i) EXPECT_FLOAT_EQ(matrix.getElements()[i], elements[i]) << why << i;
    }
}

TEST(Matrix, TakesPointsFromTheInnerSpaceToTheOuter) {
    const Matrix matrix = Matrix().translate(100, 50).rotate(90).scale(2, 3);
    EXPECT_EQ(matrix.apply({1, 0}), (PointF{100, 52})) << "x scaled by 2, then turned downward";
    EXPECT_EQ(matrix.apply({0, 1}), (PointF{97, 50})) << "y scaled by 3, then turned to the left";
}

TEST(Matrix, KnowsItsKind) {
    EXPECT_TRUE(Matrix().isIdentity() && !Matrix().translate(0.001F, 0).isIdentity());
    EXPECT_TRUE(Matrix().translate(1, 2).scale(-3, 4).isScaleAndTranslate() && Matrix().isFinite());
    EXPECT_FALSE(Matrix().rotate(90).isScaleAndTranslate());
    EXPECT_FALSE(Matrix().scale(kInfinity, 1).isFinite() || Matrix().translate(0, kNaN).isFinite());
}

/// `M0,0 L10,0 Z`, numbers to three decimals at most.
std::string textOf(const Path& path) {
    std::ostringstream text;
    const auto rounded = [](float value) { return std::round(value * 1000.0) / 1000; };
    const PointF* point = path.points().data();
    for (const PathVerb verb : path.verbs()) {
        const auto index = static_cast<std::size_t>(verb);
        text << (text.tellp() > 0 ? " " : "") << "MLCZ"[index];
        for (int i = 0; i < std::array{1, 1, 3, 0}[index]; ++i, ++point) {
            text << (i > 0 ? " " : "") << rounded(point->x) << ',' << rounded(point->y);
        }
    }
    EXPECT_EQ(point, path.points().data() + path.points().size()) << "as many points as the verbs ask for";
    return text.str();
}

TEST(Path, KeepsTheVerbsInTheOrderOfTheCalls) {
    const auto outlines = make<Path>();
    outlines->close().moveTo({0, 0}).lineTo({1, 0}).close().moveTo({5, 5}).curveTo({1, 2}, {3, 4}, {5, 6});
    EXPECT_EQ(textOf(*outlines), "M0,0 L1,0 Z M5,5 C1,2 3,4 5,6") << "there was nothing for the first one to close";
    const auto line = make<Path>();
    line->lineTo({1, 2}).lineTo({3, 4});
    EXPECT_EQ(textOf(*line), "M1,2 L3,4") << "a line that comes first starts where it ends";
    line->append(*PathCommand::polygon({{5, 6}, {7, 8}}, true));
    EXPECT_EQ(textOf(*line), "M1,2 L3,4 M5,6 L7,8 Z") << "another outline behind it";
    const auto curve = make<Path>();
    curve->curveTo({1, 2}, {3, 4}, {5, 6});
    EXPECT_EQ(textOf(*curve), "M1,2 C1,2 3,4 5,6") << "a curve that comes first starts at its first handle";
}

TEST(PathCommand, MakesShapes) {
    const char* const square = "M1,2 L31,2 L31,42 L1,42 Z";
    const std::tuple<const char*, SmartPtr<Path>, const char*> cases[] = {
        {"clockwise from the top left", PathCommand::rectangle(1, 2, 30, 40, 0, 0), square},
        {"one radius alone does not round", PathCommand::rectangle(1, 2, 30, 40, 5, 0), square},
        {"a negative radius does not round", PathCommand::rectangle(1, 2, 30, 40, -5, 5), square},
        // a handle leaves the end of its quarter by 0.552 of the radius: 4.477 = 10 - 5.523, 8.954 = 20 - 11.046
        {"rounded corners start after the first one", PathCommand::rectangle(0, 0, 100, 80, 10, 20),
         "M10,0 L90,0 C95.523,0 100,8.954 100,20 L100,60 C100,71.046 95.523,80 90,80 "
         "L10,80 C4.477,80 0,71.046 0,60 L0,20 C0,8.954 4.477,0 10,0 Z"},
        {"radii are cut to half the sides", PathCommand::rectangle(0, 0, 20, 40, 50, 100),
         "M10,0 L10,0 C15.523,0 20,8.954 20,20 L20,20 C20,31.046 15.523,40 10,40 "
         "L10,40 C4.477,40 0,31.046 0,20 L0,20 C0,8.954 4.477,0 10,0 Z"},
        {"starts at the right, clockwise on the screen, closed", PathCommand::ellipse(50, 60, 10, 20),
         "M60,60 C60,71.046 55.523,80 50,80 C44.477,80 40,71.046 40,60 "
         "C40,48.954 44.477,40 50,40 C55.523,40 60,48.954 60,60 Z"},
        {"a closed polygon", PathCommand::polygon({{0, 0}, {10, 0}, {10, 5}}, true), "M0,0 L10,0 L10,5 Z"},
        {"a line of no length, for round caps", PathCommand::polygon({{3, 4}}, false), "M3,4 L3,4"},
        {"no points, nothing", PathCommand::polygon({}, true), ""},
    };
    for (const auto& [why, path, text] : cases) EXPECT_EQ(textOf(*path), text) << why;
}

}  // namespace
}  // namespace VEXA
