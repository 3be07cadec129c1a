#include <cmath>
#include <limits>
#include <random>

#include "tests/engine/EngineTestTools.h"
#include "vexa/support/core/Math.h"
#include "vexa/util/BezierArc.h"
#include "vexa/util/Util.h"

namespace VEXA::Testing {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

/// "x,y width x height from start by sweep".
std::string textOf(const ArcData& arc) {
    return shown(PointF{arc.rect.x, arc.rect.y}) + ' ' + shown(arc.rect.width) + " x " + shown(arc.rect.height) +
           " from " + shown(arc.startAngle) + " by " + shown(arc.sweepAngle);
}

TEST(Arc, AnglesConvertAndNegativeOnesGainOneTurn) {
    const Case<double, double> cases[] = {
        {0, 0, "nothing"},
        {180, Math::kPi, "half a turn"},
        {-90, 1.5 * Math::kPi, "as 270"},
        {-400, -40 * Math::kPi / 180, "still negative: one turn is added, not two"},
        {400, 400 * Math::kPi / 180, "nothing is taken off"},
    };
    for (const auto& c : cases) EXPECT_NEAR(Util::toRadians(c.in), c.out, 1e-12) << c.why;
    EXPECT_DOUBLE_EQ(Util::toDegrees(Math::kPi), 180) << "the same number for half a turn on the way back";
    EXPECT_DOUBLE_EQ(Util::toDegrees(-Math::kPi / 4), -45);
}

TEST(Arc, PointsRunCounterClockwiseFrom3OClock) {
    const Case<double, const char*> cases[] = {
        {0, "140,50", "rightmost"},
        {Math::kPi / 2, "100,30", "topmost: y grows downward"},
        {Math::kPi, "60,50", "leftmost"},
        {-Math::kPi / 2, "100,70", "the bottom"},
        {Math::kPi / 6, "134.64,40", "30 degrees: 40 cos 30, 20 sin 30"},
        {Math::kPi * 13 / 6, "134.64,40", "and a turn more"},
    };
    for (const auto& c : cases) EXPECT_EQ(shown(Util::getArcEndPoint({100, 50}, 40, 20, c.in)), c.out) << c.why;
    EXPECT_EQ(Util::getArcEndPoint({kLargest, 0}, kLargest, 1, 0).x, kLargest) << "cut to what a float can hold";
}

TEST(Arc, EndPointsBecomeACentre) {
    const PointF right{150, 100};
    const PointF top{100, 50};
    const struct {
        PointF from, to;
        float rx, ry;
        double rotation;
        bool large, sweep;
        const char *arc, *why;
    } cases[] = {
        {right, top, 50, 50, 0, false, false, "50,50 100 x 100 from 0 by -90", "a quarter, counter-clockwise"},
        {right, top, 50, 50, 0, false, true, "100,0 100 x 100 from 90 by 90", "clockwise: beyond the chord"},
        {right, top, 50, 50, 0, true, false, "100,0 100 x 100 from 90 by -270", "the long way round that one"},
        {right, top, 50, 50, 0, true, true, "50,50 100 x 100 from 0 by 270", "and round the first"},
        {top, right, 50, 50, 0, false, true, "50,50 100 x 100 from -90 by 90", "back again"},
        {right, top, -50, -50, 0, false, false, "50,50 100 x 100 from 0 by -90", "radii have no sign"},
        {{100, 0}, {0, -50}, 100, 50, 0, false, false, "-100,-50 200 x 100 from 0 by -90", "an ellipse"},
        {{0, 0}, {40, 0}, 10, 5, 0, false, true, "0,-10 40 x 20 from 180 by 180", "too small: both radii doubled"},
        {{0, 0}, {40, 0}, 10, 5, 0, true, false, "0,-10 40 x 20 from 180 by -180", "the other half"},
        {{0, 100}, {-50, 0}, 100, 50, 90, false, true, "-100,-50 200 x 100 from 0 by 90", "the ellipse upright"},
        {{0, 100}, {-50, 0}, 100, 50, -270, false, true, "-100,-50 200 x 100 from 0 by 90", "turned the other way"},
        {{7, 8}, {7, 8}, 50, 50, 0, true, true, "7,8 0 x 0 from 0 by 0", "no arc between equal points"},
        {{7, 8}, {9, 8}, 0, 50, 0, false, true, "7,8 0 x 0 from 0 by 0", "nor without a radius"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(textOf(Util::convertArc(c.from, c.to, c.rx, c.ry, c.rotation, c.large, c.sweep)), c.arc) << c.why;
    }
}

TEST(Arc, CurvesFollowTheCircle) {
    const RectF circle{-100, -100, 200, 200};
    const struct {
        ArcData arc;
        const char *points, *why;
    } cases[] = {
        // The handles of a quarter are 0.5523 of the radius long, those of 45 degrees 4/3 tan 11.25 = 0.2652.
        {{circle, 0, 90}, "100,0 100,55.23 55.23,100 0,100", "clockwise is downward here"},
        {{circle, 0, -90}, "100,0 100,-55.23 55.23,-100 0,-100", "its mirror image"},
        {{circle, 90, 90}, "0,100 -55.23,100 -100,55.23 -100,0", "from the bottom on"},
        {{circle, 0, -45}, "100,0 100,-26.52 89.46,-51.96 70.71,-70.71", "half as much"},
        {{{0, 0, 400, 100}, 180, 90}, "0,50 0,22.39 89.54,0 200,0", "radii 200 and 50 around (200, 50)"},
        {{circle, -90, 180}, "0,-100 55.23,-100 100,-55.23 100,0 100,0 100,55.23 55.23,100 0,100", "the joint twice"},
        {{circle, 90, 0}, "0,100 0,100 0,100 0,100", "no extent: it stays where it starts"},
        {{circle, 0, kNaN}, "100,0 100,0 100,0 100,0", "an extent that is no number"},
    };
    for (const auto& c : cases) EXPECT_EQ(shown(Util::getBezierArcPoints(c.arc)), c.points) << c.why;
}

TEST(Arc, NoCurveCoversMoreThan90Degrees) {
    const Case<float, int> cases[] = {
        {45, 1, "part of a quarter"}, {90, 1, "exactly one"},         {90.001F, 2, "a hair more"},
        {180, 2, "a half"},           {-270, 3, "counter-clockwise"}, {360, 4, "all"},
        {-360, 4, "the other way"},   {450, 5, "more than a turn"},   {kInfinity, 400, "a hundred turns at most"},
    };
    for (const auto& c : cases) EXPECT_EQ(BezierArc({{0, 0, 10, 10}, 0, c.in}).segmentCount(), c.out) << c.why;
}

TEST(Arc, RunsFromTheFirstPointToTheSecondOnAnEllipseOfThoseRadii) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> place(-300, 300);
    std::uniform_real_distribution<float> radius(1, 200);
    for (int i = 0; i < 1000; ++i) {
        const PointF from{place(random), place(random)};
        const PointF to{place(random), place(random)};
        const ArcData arc = Util::convertArc(from, to, radius(random), radius(random), 0, i % 2 == 0, i % 4 < 2);
        ASSERT_EQ(arc.sweepAngle > 0, i % 4 < 2) << "the sweep's sign is its direction";
        const BezierArc curves(arc);
        const PointF start = curves.segment(0).from;
        const PointF end = curves.segment(curves.segmentCount() - 1).to;
        ASSERT_NEAR(std::hypot(start.x - from.x, start.y - from.y), 0, 0.01);
        ASSERT_NEAR(std::hypot(end.x - to.x, end.y - to.y), 0, 0.01);
        const float rx = arc.rect.width / 2;
        const float ry = arc.rect.height / 2;
        for (int k = 0; k < curves.segmentCount(); ++k) {
            const BezierSegment s = curves.segment(k);
            const float x = (s.from.x + 3 * s.control1.x + 3 * s.control2.x + s.to.x) / 8 - arc.rect.x - rx;
            const float y = (s.from.y + 3 * s.control1.y + 3 * s.control2.y + s.to.y) / 8 - arc.rect.y - ry;
            ASSERT_NEAR(std::hypot(x / rx, y / ry), 1, 0.0003) << "the middle of a curve lies on the ellipse";
        }
    }
}

}  // namespace
}  // namespace VEXA::Testing
