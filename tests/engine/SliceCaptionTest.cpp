#include <cmath>
#include <limits>
#include <random>

#include "tests/engine/EngineTestTools.h"
#include "vexa/pie/CaptionLayout.h"
#include "vexa/pie/CaptionOverlap.h"
#include "vexa/support/core/Math.h"
#include "vexa/util/Util.h"

namespace VEXA::Testing {
namespace {

using enum CaptionPlacement;

/// A slice of a pie of 200 px by 200 px with its middle there, in degrees clockwise from 12 o'clock.
SliceGeometry sliceAt(double clock) {
    SliceGeometry slice;
    slice.size = {200, 200};
    slice.startAngle = Util::toRadians(450 - clock - 10);
    slice.endAngle = Util::toRadians(450 - clock + 10);
    return slice;
}

/// A caption of five characters of 6 px by 10 px, 4 px from the rim.
CaptionRequest request(CaptionPlacement placement) {
    CaptionRequest request;
    request.placement = placement;
    request.text = {30, 10};
    request.lineHeight = 10;
    request.offset = 4;
    return request;
}

std::string anchorAt(double clock, const CaptionRequest& request) {
    return shown(placeCaption(sliceAt(clock), request).anchor);
}

TEST(SliceCaption, PlacementsInEachQuarter) {
    // On the diagonals 104 px from the centre are 73.54 px each way, 96 px are 67.88 and 75 px are 53.03.
    const struct {
        CaptionPlacement placement;
        const char *upperRight, *lowerRight, *lowerLeft, *upperLeft;
    } cases[] = {
        {Default, "173.54,26.46", "173.54,183.54", "-3.54,183.54", "-3.54,26.46"},
        {OutsideEnd, "173.54,26.46", "173.54,183.54", "-3.54,183.54", "-3.54,26.46"},
        {InsideBase, "173.54,26.46", "173.54,183.54", "-3.54,183.54", "-3.54,26.46"},
        {InsideEnd, "137.88,42.12", "137.88,167.88", "32.12,167.88", "32.12,42.12"},
        {Center, "138.03,51.97", "138.03,158.03", "31.97,158.03", "31.97,51.97"},
    };
    for (const auto& c : cases) {
        const int ordinal = static_cast<int>(c.placement);
        EXPECT_EQ(anchorAt(45, request(c.placement)), c.upperRight) << ordinal;
        EXPECT_EQ(anchorAt(135, request(c.placement)), c.lowerRight) << ordinal;
        EXPECT_EQ(anchorAt(225, request(c.placement)), c.lowerLeft) << ordinal;
        EXPECT_EQ(anchorAt(315, request(c.placement)), c.upperLeft) << ordinal;
    }
}

TEST(SliceCaption, LinesAndDepthMoveItAwayFromThePie) {
    CaptionRequest lines = request(Default);
    lines.text = {30, 22};  // two lines with a gap of 2 px
    EXPECT_EQ(anchorAt(45, lines), "173.54,14.46") << "the last line stands where a single one would";
    EXPECT_EQ(anchorAt(315, lines), "-3.54,14.46");
    EXPECT_EQ(anchorAt(135, lines), "173.54,183.54") << "below the pie the first one does";
    const RectF box = placeCaption(sliceAt(45), lines).box;
    EXPECT_EQ(shown(PointF{box.x, box.y}) + ' ' + shown(box.width) + ' ' + shown(box.height), "173.54,4.46 30 22")
        << "from the top of the first line on";
    CaptionRequest deep = request(Default);
    deep.depth = 15;
    EXPECT_EQ(anchorAt(45, deep), "173.54,26.46");
    EXPECT_EQ(anchorAt(225, deep), "-3.54,198.54") << "below the lower rim";
    deep.placement = InsideEnd;
    EXPECT_EQ(anchorAt(225, deep), "32.12,167.88") << "the top face is where it is";
}

TEST(SliceCaption, ConnectorsLeadFromTheRimToTheText) {
    const struct {
        double clock;
        float depth;
        const char *anchor, *connector, *why;
    } cases[] = {
        {45, 0, "180.54,26.46", "170.71,29.29 173.54,23.96 178.54,23.96", "to the right: 7 px, less 2, less 5"},
        {135, 10, "180.54,193.54", "170.71,175.71 173.54,191.04 178.54,191.04", "from the middle of the wall"},
        {225, 10, "-10.54,193.54", "29.29,175.71 26.46,191.04 21.46,191.04", "to the left, behind the text"},
        {315, 10, "-10.54,26.46", "29.29,29.29 26.46,23.96 21.46,23.96", "no wall shows at the back"},
    };
    for (const auto& c : cases) {
        CaptionRequest wanted = request(OutsideEnd);
        wanted.wantsConnector = true;
        wanted.depth = c.depth;
        const CaptionLayout layout = placeCaption(sliceAt(c.clock), wanted);
        EXPECT_TRUE(layout.hasConnector);
        EXPECT_EQ(shown(layout.anchor), c.anchor) << c.why;
        EXPECT_EQ(layout.box.x, layout.anchor.x) << "the box goes along";
        EXPECT_EQ(shown(std::vector{layout.connectorRim, layout.connectorElbow, layout.connectorEnd}), c.connector)
            << c.why;
    }
    for (const CaptionPlacement inside : {Center, InsideEnd, InsideBase}) {
        CaptionRequest wanted = request(inside);
        wanted.wantsConnector = true;
        EXPECT_FALSE(placeCaption(sliceAt(45), wanted).hasConnector) << "only for captions outside";
        EXPECT_EQ(shown(placeCaption(sliceAt(45), wanted).anchor), anchorAt(45, request(inside)));
    }
}

TEST(SliceCaption, ClockAngleCountsFrom12OClock) {
    const Case<double, double> cases[] = {
        {90, 360, "the top from the left"},
        {450, 0, "the top from the right"},
        {0, 90, "3 o'clock"},
        {180, 270, "9 o'clock"},
        {270, 180, "6 o'clock"},
        {405, 45, "in between"},
        {-270, 360, "whole turns"},
        {810, 0, "the other way"},
        {990, 180, "two of them"},
        {-1000, 10, "1450 less four"},
    };
    for (const auto& c : cases) EXPECT_NEAR(clockAngle(c.in * Math::kPi / 180), c.out, 1e-9) << c.why;
    for (const double radians : {1e300, -1e300, std::nan("")}) {
        const double clock = clockAngle(radians);
        EXPECT_TRUE(clock >= 0 && clock <= 360) << radians;
    }
}

TEST(SliceCaption, StaysFiniteWhateverTheNumbers) {
    const float nasty[] = {0, -5, 1e-45F, 1e30F, std::numeric_limits<float>::max(), -std::numeric_limits<float>::max()};
    for (const float size : nasty) {
        for (const float offset : nasty) {
            for (const CaptionPlacement placement : {Default, Center, InsideEnd}) {
                SliceGeometry slice = sliceAt(200);
                slice.size = {size, size};
                CaptionRequest wanted = request(placement);
                wanted.offset = wanted.depth = offset;
                wanted.wantsConnector = true;
                const CaptionLayout layout = placeCaption(slice, wanted);
                for (const PointF point :
                     {layout.anchor, layout.connectorRim, layout.connectorElbow, layout.connectorEnd})
                    EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y)) << size << ' ' << offset;
            }
        }
    }
}

std::string marksOf(const Vector<bool>& stays) {
    std::string text;
    for (const bool stay : stays) text += stay ? '+' : '-';
    return text;
}

TEST(CaptionOverlap, TheFirstInDocumentOrderWins) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const struct {
        std::vector<RectF> boxes;
        const char *stays, *why;
    } cases[] = {
        {{}, "", "nothing"},
        {{{0, 0, 10, 10}}, "+", "one alone"},
        {{{0, 0, 10, 10}, {9, 9, 10, 10}}, "+-", "a corner"},
        {{{0, 0, 10, 10}, {10, 0, 10, 10}, {0, 10, 10, 10}, {10, 10, 5, 5}}, "++++", "side by side is not over"},
        {{{0, 0, 10, 10}, {8, 0, 10, 10}, {16, 0, 10, 10}}, "+-+", "what is gone hides nothing"},
        {{{2, 2, 1, 1}, {0, 0, 10, 10}, {5, 5, 1, 1}}, "+-+", "one within another"},
        {{{0, 0, 10, 10}, {5, 5, 0, 10}, {5, 5, 10, -1}, {4, 4, 2, 2}},
         "+++-",
         "without extent there is nothing to hide"},
        {{{nan, 0, 10, 10}, {0, 0, 10, 10}, {0, nan, 10, 10}, {5, 5, 1, 1}}, "+++-", "what is no number is nowhere"},
    };
    for (const auto& c : cases) EXPECT_EQ(marksOf(boxesWithoutOverlap(c.boxes)), c.stays) << c.why;
}

/// For each visible caption in order, every other visible one that it intersects is hidden.
Vector<bool> pairwise(const std::vector<RectF>& boxes) {
    Vector<bool> stays(boxes.size(), true);
    for (std::size_t s = 0; s < boxes.size(); ++s) {
        for (std::size_t t = 0; t < boxes.size() && stays[s]; ++t) {
            const RectF& a = boxes[s];
            const RectF& b = boxes[t];
            if (s != t && a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height)
                stays[t] = false;
        }
    }
    return stays;
}

TEST(CaptionOverlap, IsThatOfAllPairs) {
    std::mt19937 random(11);
    // Whole numbers, so that many boxes touch; sizes from equal to a hundredfold.
    for (const int spread : {40, 200, 2000}) {
        for (const int largest : {1, 10, 100}) {
            for (int round = 0; round < 30; ++round) {
                const auto upTo = [&](int limit) {
                    return static_cast<float>(random() % static_cast<unsigned>(limit));
                };
                std::vector<RectF> boxes(random() % 200);
                for (RectF& box : boxes) box = {upTo(spread), upTo(spread), 1 + upTo(largest), 1 + upTo(largest)};
                ASSERT_EQ(marksOf(boxesWithoutOverlap(boxes)), marksOf(pairwise(boxes))) << spread << ' ' << largest;
            }
        }
    }
}

TEST(CaptionOverlap, EndsWhereBoxesCrowd) {
    // A hundred thousand specks in a corner beside one large box, which as many others give way to: ten thousand
    // million pairs, and every cell of a grid that suits the large ones holds all of the specks.
    std::vector<RectF> boxes;
    for (int i = 0; i < 100'000; ++i) {
        const auto x = static_cast<float>(i % 300);
        const auto y = static_cast<float>(i / 300);
        boxes.push_back({x / 1000, y / 1000, 0.0005F, 0.0005F});
    }
    for (int i = 0; i < 100'000; ++i) boxes.push_back({0.5F, 0, 1000, 10});
    const Vector<bool> stays = boxesWithoutOverlap(boxes);
    EXPECT_EQ(std::count(stays.begin(), stays.end(), true), 100'001);
}

}  // namespace
}  // namespace VEXA::Testing
