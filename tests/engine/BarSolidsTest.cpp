#include "vexa/cartesian/BarSolids.h"

#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/StackRoles.h"

namespace VEXA::Testing {
namespace {

constexpr auto kVertical = BarDirection::Vertical;
constexpr auto kHorizontal = BarDirection::Horizontal;
// Bars 40 px long and 10 px wide, 8 px deep.
constexpr BarAnchors kUp{{50, 20}, {50, 60}};
constexpr BarAnchors kDown{{50, 60}, {50, 20}};
constexpr BarAnchors kRight{{60, 50}, {20, 50}};
constexpr BarAnchors kLeft{{20, 50}, {60, 50}};

/// "base front side* value*": faces in painting order, with a star those that the brush of the sides paints.
std::string facesOf(const BarRole& role, BarDirection direction) {
    static constexpr const char* kNames[] = {"front", "side", "value", "base", "far"};
    std::string text;
    const BoxFaces seen(role, direction);
    for (const PaintedFace& face : seen.faces()) {
        if (!text.empty()) text += ' ';
        text += kNames[static_cast<int>(face.face)] + std::string(face.isShaded ? "*" : "");
    }
    return text;
}

TEST(BoxFaces, OfBarsThatStandAlone) {
    const struct {
        BarDirection direction;
        int sign;
        const char* faces;
    } cases[] = {
        {kVertical, 1, "base front side* value*"},   {kVertical, -1, "base* front side*"},        {kVertical, 0, ""},
        {kHorizontal, 1, "far* front value* side*"}, {kHorizontal, -1, "far* front base* side*"}, {kHorizontal, 0, ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(facesOf({SerieGrouping::Overlapped, c.sign}, c.direction), c.faces);
        EXPECT_EQ(facesOf({SerieGrouping::Clustered, c.sign}, c.direction), c.faces);
        EXPECT_EQ(facesOf({static_cast<SerieGrouping>(3), c.sign}, c.direction), "") << "an unknown grouping";
    }
}

TEST(BoxFaces, OfStackedBars) {
    const struct {
        BarRole role;
        const char *vertical, *horizontal, *why;
    } cases[] = {
        {{SerieGrouping::Stacked, 1, true, false, false},
         "base front side* value* front side*",
         "far front side* value* front side*",
         "the top of the stack"},
        {{SerieGrouping::Stacked, -1, false, true, false}, "front side* front side*", "front front side*", "its foot"},
        {{SerieGrouping::Stacked, -1, false, false, true},
         "base* front side* front side*",
         "front base* front side*",
         "the first bar of a stack that hangs"},
        {{SerieGrouping::Stacked, -1, false, true, true},
         "front side* base* front side* front side*",
         "front front base* front side*",
         "the only bar of such a stack"},
        {{SerieGrouping::Stacked, 1, false, false, false}, "front side*", "front side*", "in the middle"},
        {{SerieGrouping::Stacked, 0, true, true, true},
         "front side*",
         "front side*",
         "a bar of no length ends nothing"},
        {{SerieGrouping::Stacked, 1, false, true, true}, "front side*", "front side*", "roles of the other sign"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(facesOf(c.role, kVertical), c.vertical) << c.why;
        EXPECT_EQ(facesOf(c.role, kHorizontal), c.horizontal) << c.why;
    }
}

TEST(BoxFaces, Corners) {
    const struct {
        BarFace face;
        const char *up, *right;
    } cases[] = {
        {BarFace::Front, "41,20 51,20 51,60 41,60", "20,45 60,45 60,55 20,55"},
        {BarFace::Side, "51,20 51,60 59,52 59,12", "20,45 60,45 68,37 28,37"},
        {BarFace::FarSide, "41,20 41,60 49,52 49,12", "20,55 60,55 68,47 28,47"},
        {BarFace::ValueEnd, "41,20 51,20 59,12 49,12", "60,45 60,55 68,47 68,37"},
        {BarFace::BaseEnd, "41,60 51,60 59,52 49,52", "20,45 20,55 28,47 28,37"},
    };
    const auto corners = [](BarFace face, const BarAnchors& bar, BarDirection direction) {
        const SolidFace found = boxFace(face, bar, 10, 8, direction);
        return shown(std::vector<PointF>(found.begin(), found.end()));
    };
    for (const auto& c : cases) {
        EXPECT_EQ(corners(c.face, kUp, kVertical), c.up) << "half its depth to the left";
        EXPECT_EQ(corners(c.face, kRight, kHorizontal), c.right) << "not moved";
    }
    EXPECT_EQ(corners(BarFace::ValueEnd, kDown, kVertical), "41,60 51,60 59,52 49,52") << "the value is below";
    EXPECT_EQ(corners(BarFace::BaseEnd, kLeft, kHorizontal), "60,45 60,55 68,47 68,37") << "the base is on the right";
}

std::string drawn(const SmartPtr<Path>& path) {
    std::string text;
    for (const PathVerb verb : path->verbs()) text += "MLCZ"[static_cast<int>(verb)];
    return text + ' ' + shown(path->points());
}

TEST(Cylinder, BodyAndCap) {
    const std::string body = "MCLCLZ 45,12 45,20 55,20 55,12 55,52 55,60 45,60 45,52 45,12";
    const std::string cap = "MCCZ 45,12 45,20 55,20 55,12 55,4 45,4 45,12";
    for (const BarAnchors& bar : {kUp, kDown}) {
        EXPECT_EQ(drawn(cylinderBody(bar, 10, 8, kVertical)), body);
        EXPECT_EQ(drawn(cylinderCap(bar, 10, 8, kVertical)), cap) << "its upper end, the base of one that hangs";
    }
    EXPECT_EQ(drawn(cylinderBody(kRight, 10, 8, kHorizontal)),
              "MCLCLZ 68,45 60,45 60,55 68,55 28,55 20,55 20,45 28,45 68,45");
    EXPECT_EQ(drawn(cylinderBody(kLeft, 10, 8, kHorizontal)),
              "MCLCLZ 28,45 20,45 20,55 28,55 68,55 60,55 60,45 68,45 28,45");
    for (const BarAnchors& bar : {kRight, kLeft}) {
        EXPECT_EQ(drawn(cylinderCap(bar, 10, 8, kHorizontal)), "MCCZ 68,45 60,45 60,55 68,55 76,55 76,45 68,45")
            << "always the right end";
    }
}

TEST(StackRoles, FollowTheLastSeriesOfEachSign) {
    // Category 1: 3, -2, 4; category 2: -1, -5 and nothing; category 3: 0 and 0; category 4 twice in one series.
    const struct {
        std::size_t serie;
        double category;
        float value;
    } points[] = {{0, 1, 3},  {0, 2, -1}, {0, 3, 0}, {0, 4, 2}, {0, 4, -9},
                  {1, 1, -2}, {1, 2, -5}, {1, 3, 0}, {2, 1, 4}};
    StackRoles roles;
    for (const auto& point : points) roles.add(point.serie, Value(point.category), point.value);
    const struct {
        std::size_t serie;
        double category;
        float value;
        BarRole role;
        bool hasCap;
    } cases[] = {
        {0, 1, 3, {SerieGrouping::Stacked, 1, false, false, false}, false},
        {1, 1, -2, {SerieGrouping::Stacked, -1, false, true, false}, false},
        {2, 1, 4, {SerieGrouping::Stacked, 1, true, false, false}, true},
        {0, 2, -1, {SerieGrouping::Stacked, -1, false, false, true}, true},
        {1, 2, -5, {SerieGrouping::Stacked, -1, false, true, false}, false},
        {0, 3, 0, {SerieGrouping::Stacked, 0, false, false, true}, true},
        {1, 3, 0, {SerieGrouping::Stacked, 0, false, false, false}, false},
        {0, 4, 2, {SerieGrouping::Stacked, 1, true, false, false}, true},
        {0, 4, -9, {SerieGrouping::Stacked, -1, false, false, false}, true},
        {0, 9, 2, {SerieGrouping::Stacked, 1, false, false, false}, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(facesOf(roles.roleOf(c.serie, Value(c.category), c.value), kVertical), facesOf(c.role, kVertical))
            << "serie " << c.serie << " at " << c.category;
        EXPECT_EQ(roles.hasCap(c.serie, Value(c.category)), c.hasCap) << "serie " << c.serie << " at " << c.category;
    }
}

}  // namespace
}  // namespace VEXA::Testing
