#include "vexa/pie/SliceGeometry.h"

#include "tests/engine/EngineTestTools.h"
#include "vexa/pie/SlicePath.h"
#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA::Testing {
namespace {

constexpr auto kClockwise = SliceOrientation::Clockwise;
constexpr auto kCounter = SliceOrientation::CounterClockwise;

/// "start to end degrees: outer points".
std::string textOf(const SliceGeometry& slice) {
    return shown(Util::toDegrees(slice.startAngle)) + " to " + shown(Util::toDegrees(slice.endAngle)) + ": " +
           shown(std::vector<PointF>{slice.outerStart, slice.outerEnd});
}

SliceGeometry firstOf(SizeF size, float startAngle, SliceOrientation orientation, double share,
                      PieShapeType shape = PieShapeType::Pie) {
    return SliceCutter(size, startAngle, orientation, shape, 1).next(share);
}

TEST(SliceGeometry, SlicesFollowEachOther) {
    SliceCutter clockwise({200, 200}, 0, kClockwise, PieShapeType::Pie, 100);
    EXPECT_EQ(textOf(clockwise.next(25)), "270 to 360: 100,200 200,100") << "from 3 to 6 o'clock, told the other way";
    EXPECT_EQ(textOf(clockwise.next(25)), "180 to 270: 0,100 100,200");
    EXPECT_EQ(textOf(clockwise.next(0)), "180 to 180: 0,100 0,100") << "nothing takes no room";
    EXPECT_EQ(textOf(clockwise.next(50)), "0 to 180: 200,100 0,100");
    SliceCutter counter({400, 100}, 90, kCounter, PieShapeType::Doughnut, 8);
    EXPECT_EQ(textOf(counter.next(1)), "90 to 135: 200,0 58.58,14.64") << "200 and 50 times the cosine of 45";
    const SliceGeometry slice = counter.next(1);
    EXPECT_EQ(textOf(slice), "135 to 180: 58.58,14.64 0,50");
    EXPECT_EQ(shown(std::vector<PointF>{slice.innerStart, slice.innerEnd}), "129.29,32.32 100,50") << "half as far";
}

TEST(SliceGeometry, StartAnglesAreMeasuredInTheDirectionOfTheSlices) {
    const struct {
        float angle;
        SliceOrientation orientation;
        const char *slice, *why;
    } cases[] = {
        {90, kCounter, "90 to 180: 100,0 0,100", "12 o'clock, to the left"},
        {90, kClockwise, "180 to 270: 0,100 100,200", "6 o'clock, to the left"},
        {270, kClockwise, "0 to 90: 200,100 100,0", "12 o'clock, to the right"},
        {-90, kClockwise, "0 to 90: 200,100 100,0", "the same"},
        {360, kCounter, "360 to 450: 200,100 100,0", "a whole turn changes nothing but the numbers"},
        {-400, kCounter, "-40 to 130: 176.6,164.28 35.72,23.4", "beyond a turn: one is added, too few"},
    };
    for (const auto& c : cases) EXPECT_EQ(textOf(firstOf({200, 200}, c.angle, c.orientation, 0.25)), c.slice) << c.why;
}

TEST(SliceGeometry, KnowsWholeHalvesAndNothing) {
    const struct {
        double share;
        bool isWhole, isMoreThanHalf, isEmpty;
        const char* why;
    } cases[] = {
        {1, true, true, false, "all: the edges coincide, but not because there is nothing"},
        {0.99999, true, true, false, "a hundred thousandth of a turn is 0.00006 radians"},
        {0.9999, false, true, false, "ten of them are more than the tolerance"},
        {0.50001, false, true, false, "the larger half"},
        {0.49999, false, false, false, "the smaller half"},
        {0, false, false, true, "nothing"},
        {1e-12, false, false, true, "less than a float can tell"},
    };
    for (const SliceOrientation orientation : {kClockwise, kCounter}) {
        for (const auto& c : cases) {
            const SliceGeometry slice = firstOf({200, 200}, 270, orientation, c.share);
            EXPECT_EQ(slice.isWhole(), c.isWhole) << c.why;
            EXPECT_EQ(slice.isMoreThanHalf(), c.isMoreThanHalf) << c.why;
            EXPECT_EQ(slice.isEmpty(), c.isEmpty) << c.why;
        }
    }
}

/// The letters of a path's verbs and its points.
std::string textOf(const Path& path) {
    std::string text;
    for (const PathVerb verb : path.verbs()) text += "MLCZ"[static_cast<std::size_t>(verb)];
    return text + ' ' + shown(path.points());
}

TEST(SlicePath, OutlinesSlices) {
    const auto pie = [](double share) { return firstOf({200, 200}, 0, kCounter, share); };
    const auto doughnut = [](double share) { return firstOf({200, 200}, 0, kCounter, share, PieShapeType::Doughnut); };
    const std::string ellipse =
        " 200,100 200,155.23 155.23,200 100,200 44.77,200 0,155.23 0,100 0,44.77 44.77,0 100,0 155.23,0 200,44.77 "
        "200,100";
    const std::string hole =
        " 150,100 150,127.61 127.61,150 100,150 72.39,150 50,127.61 50,100 50,72.39 72.39,50 100,50 127.61,50 "
        "150,72.39 150,100";
    const Case<SmartPtr<Path>, std::string> cases[] = {
        {slicePath(pie(0.25)), "MCLZ 200,100 200,44.77 155.23,0 100,0 100,100", "by the rim and the centre"},
        {slicePath(pie(0.75)),
         "MCCCLZ 200,100 200,44.77 155.23,0 100,0 44.77,0 0,44.77 0,100 0,155.23 44.77,200 100,200 100,100",
         "the long way round"},
        {slicePath(pie(1)), "MMCCCCZLZ 200,100" + ellipse + " 100,100", "a whole pie is an ellipse"},
        {segmentPath(doughnut(0.25)),
         "MCLCLZ 200,100 200,44.77 155.23,0 100,0 100,50 127.61,50 150,72.39 150,100 200,100", "and back by the hole"},
        {segmentPath(doughnut(1)), "MMCCCCZMCCCCZZ 200,100" + ellipse + hole, "a whole doughnut"},
        {wallPath({{0, 100}, {100, 200}}, {100, 100}, 10),
         "MCLCZ 0,100 0,155.23 44.77,200 100,200 100,210 44.77,210 0,165.23 0,110", "a wall, back at its foot"},
    };
    for (const auto& c : cases) EXPECT_EQ(textOf(*c.in), c.out) << c.why;
}

/// The ends of a wall by name: S and E of the slice, L and R of the rim; empty without a wall.
std::string named(const std::optional<WallEnds>& ends, PointF start, PointF end, PointF left, PointF right) {
    const auto name = [&](PointF point) {
        return point == start ? "S" : point == end ? "E" : point == left ? "L" : point == right ? "R" : "?";
    };
    return ends ? std::string(name(ends->from)) + name(ends->to) : "";
}

TEST(SliceWalls, StandWhereTheRimShows) {
    constexpr float up = 20;
    constexpr float on = 50;  // half of the height: the level of the rim's outermost points
    constexpr float down = 80;
    const struct {
        float start, end;
        const char *outer, *inner, *wideOuter, *wideInner;
    } cases[] = {
        // up to half of the pie       more than half
        {up, up, "", "SE", "LR", "RL"},  // wide ends at one height: all of the rim
        {up, up + 9, "", "SE", "LR", ""},
        {up, on, "LE", "SL", "LE", "SL"},
        {up, down, "LE", "SL", "LE", "SL"},
        {on, up, "SR", "RE", "SR", "RE"},
        {on, on, "LE", "SL", "LR", "RL"},
        {on, down, "LE", "SL", "LE", "SL"},
        {down, up, "SR", "RE", "SR", "RE"},
        {down, on, "SR", "RE", "SR", "RE"},
        {down, down + 9, "SE", "", "", "RL"},
        {down, down + 0.0009F, "SE", "", "LR", "RL"},
        {down, down + 0.0011F, "SE", "", "", "RL"},
    };
    for (const auto& c : cases) {
        SliceGeometry slice;
        slice.size = {200, 100};
        slice.outerStart = slice.innerStart = {120, c.start};
        slice.outerEnd = slice.innerEnd = {90, c.end};
        for (const bool isWide : {false, true}) {
            slice.endAngle = isWide ? Math::kPi + 0.001 : Math::kPi;
            EXPECT_EQ(named(outerWall(slice), slice.outerStart, slice.outerEnd, {0, 50}, {200, 50}),
                      isWide ? c.wideOuter : c.outer)
                << c.start << ' ' << c.end << ' ' << isWide;
            EXPECT_EQ(named(innerWall(slice), slice.innerStart, slice.innerEnd, {50, 50}, {150, 50}),
                      isWide ? c.wideInner : c.inner)
                << c.start << ' ' << c.end << ' ' << isWide;
        }
    }
}

}  // namespace
}  // namespace VEXA::Testing
