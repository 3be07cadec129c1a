#include "vexa/support/drawing/Path.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace VEXA {
namespace {

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
    struct Case {
        const char* why;
        SmartPtr<Path> path;
        const char* text;
    };
    const char* const square = "M1,2 L31,2 L31,42 L1,42 Z";
    const Case cases[] = {
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
    for (const Case& c : cases) EXPECT_EQ(textOf(*c.path), c.text) << c.why;
}

}  // namespace
}  // namespace VEXA
