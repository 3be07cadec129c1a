#include "vexa/cartesian/BarSolids.h"

#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/StackRoles.h"

namespace VEXA::Testing {
namespace {

constexpr auto kVertical = BarDirection::Vertical;
constexpr auto kHorizontal = BarDirection::Horizontal;
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
