#include "vexa/support/drawing/Path.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace VEXA {
namespace {

/// `M0,0 L10,0 Z`, numbers to three decimals at most.
std::string textOf(const Path& path) {
    std::string text;
    const PointF* point = path.points().data();
    for (const PathVerb verb : path.verbs()) {
        const int index = static_cast<int>(verb);
        if (!text.empty()) text += ' ';
        text += "MLCZ"[index];
        for (int count = std::array{1, 1, 3, 0}[static_cast<std::size_t>(index)]; count > 0; --count, ++point) {
            char buffer[64];
            std::snprintf(buffer, sizeof buffer, "%.7g,%.7g", std::round(point->x * 1000.0) / 1000,
                          std::round(point->y * 1000.0) / 1000);
            text.append(buffer).append(count > 1 ? " " : "");
        }
    }
    EXPECT_EQ(point, path.points().data() + path.points().size()) << "as many points as the verbs ask for";
    return text;
}

struct PathCase {
    const char* why;
    SmartPtr<Path> path;
    const char* text;
};

class Paths : public testing::TestWithParam<PathCase> {};

TEST_P(Paths, AreMadeOf) { EXPECT_EQ(textOf(*GetParam().path), GetParam().text) << GetParam().why; }

SmartPtr<Path> made(void (*build)(Path&)) {
    SmartPtr<Path> path = make<Path>();
    build(*path);
    return path;
}

INSTANTIATE_TEST_SUITE_P(
    ByHand, Paths,
    testing::Values(PathCase{"verbs in the order of the calls, open where not closed", made([](Path& p) {
                                 p.moveTo({0, 0}).lineTo({10, 0}).curveTo({1, 2}, {3, 4}, {5, 6});
                             }),
                             "M0,0 L10,0 C1,2 3,4 5,6"},
                    PathCase{"several outlines in one path", made([](Path& p) {
                                 p.moveTo({0, 0}).lineTo({1, 0}).close().moveTo({5, 5}).lineTo({6, 5});
                             }),
                             "M0,0 L1,0 Z M5,5 L6,5"},
                    PathCase{"a line that comes first starts where it ends", made([](Path& p) {
                                 p.lineTo({1, 2}).lineTo({3, 4});
                             }),
                             "M1,2 L3,4"},
                    PathCase{"a curve that comes first starts at its first handle", made([](Path& p) {
                                 p.curveTo({1, 2}, {3, 4}, {5, 6});
                             }),
                             "M1,2 C1,2 3,4 5,6"},
                    PathCase{"nothing to close", made([](Path& p) { p.close(); }), ""}));

INSTANTIATE_TEST_SUITE_P(
    Makers, Paths,
    testing::Values(
        PathCase{"clockwise from the top left", PathCommand::rectangle(1, 2, 30, 40, 0, 0),
                 "M1,2 L31,2 L31,42 L1,42 Z"},
        PathCase{"one radius alone does not round", PathCommand::rectangle(1, 2, 30, 40, 5, 0),
                 "M1,2 L31,2 L31,42 L1,42 Z"},
        PathCase{"a negative radius does not round", PathCommand::rectangle(1, 2, 30, 40, -5, 5),
                 "M1,2 L31,2 L31,42 L1,42 Z"},
        // a handle leaves the end of its quarter by 0.552 of the radius: 4.477 = 10 - 5.523, 8.954 = 20 - 11.046
        PathCase{"rounded corners start after the first one", PathCommand::rectangle(0, 0, 100, 80, 10, 20),
                 "M10,0 L90,0 C95.523,0 100,8.954 100,20 L100,60 C100,71.046 95.523,80 90,80 "
                 "L10,80 C4.477,80 0,71.046 0,60 L0,20 C0,8.954 4.477,0 10,0 Z"},
        PathCase{"radii are cut to half the sides", PathCommand::rectangle(0, 0, 20, 40, 50, 100),
                 "M10,0 L10,0 C15.523,0 20,8.954 20,20 L20,20 C20,31.046 15.523,40 10,40 "
                 "L10,40 C4.477,40 0,31.046 0,20 L0,20 C0,8.954 4.477,0 10,0 Z"},
        PathCase{"starts at the right, clockwise on the screen, closed", PathCommand::ellipse(50, 60, 10, 20),
                 "M60,60 C60,71.046 55.523,80 50,80 C44.477,80 40,71.046 40,60 "
                 "C40,48.954 44.477,40 50,40 C55.523,40 60,48.954 60,60 Z"},
        PathCase{"an open polygon", PathCommand::polygon({{0, 0}, {10, 0}, {10, 5}}, false), "M0,0 L10,0 L10,5"},
        PathCase{"a closed polygon", PathCommand::polygon({{0, 0}, {10, 0}, {10, 5}}, true), "M0,0 L10,0 L10,5 Z"},
        PathCase{"one point is a line of no length, for round caps", PathCommand::polygon({{3, 4}}, false),
                 "M3,4 L3,4"},
        PathCase{"no points, nothing", PathCommand::polygon({}, true), ""}));

TEST(PathCommand, QuartersOfAnEllipseFollowIt) {
    const SmartPtr<Path> circle = PathCommand::ellipse(0, 0, 1000, 1000);
    const auto& p = circle->points();
    for (std::size_t i = 0; i + 3 < p.size(); i += 3) {  // the middle of a cubic: (P0 + 3 P1 + 3 P2 + P3) / 8
        const float x = (p[i].x + 3 * p[i + 1].x + 3 * p[i + 2].x + p[i + 3].x) / 8;
        const float y = (p[i].y + 3 * p[i + 1].y + 3 * p[i + 2].y + p[i + 3].y) / 8;
        EXPECT_NEAR(std::hypot(x, y), 1000, 0.01) << "quarter " << i / 3;
    }
}

}  // namespace
}  // namespace VEXA
