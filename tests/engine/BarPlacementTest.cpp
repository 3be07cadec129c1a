#include <random>

#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/BarCaption.h"
#include "vexa/cartesian/BarGroups.h"

namespace VEXA::Testing {
namespace {

/// The centre of each bar as placed with gaps of 2 px, series by series.
std::string placed(const UnplacedSeries& series, SerieGrouping grouping = SerieGrouping::Clustered) {
    std::string text;
    for (const auto& shifts : placeBars(series, grouping, 2)) {
        for (const BarShift& shift : shifts) text += shown(shift.category) + (shift.value == 0 ? " " : " raised ");
    }
    return text;
}

TEST(BarPlacement, SideBySide) {
    const auto bar = [](float category, float width = 10) { return UnplacedBar{category, 0, 50, width}; };
    const Case<UnplacedSeries, const char*> cases[] = {
        {{{bar(100, 20)}, {bar(100, 6)}}, "96 111 ", "20 + 2 + 6: from 86 to 114"},
        {{{bar(100)}, {}, {bar(100.000005F)}}, "94 106 ", "within the tolerance"},
        {{{bar(1)}, {bar(1.00002F)}}, "1 1 ", "beyond it"},
        {{{bar(100), bar(100)}, {bar(100)}}, "94 94 106 ", "of two in a series each is its own"},
    };
    for (const auto& c : cases) EXPECT_EQ(placed(c.in), c.out) << c.why;
    EXPECT_EQ(placed({{bar(100)}, {bar(100)}}, static_cast<SerieGrouping>(7)), "100 100 ");
}

/// The first bar of a series at that place in document order; null without one.
const UnplacedBar* firstAt(const std::vector<UnplacedBar>& series, float category) {
    for (const UnplacedBar& bar : series) {
        if (std::abs(static_cast<double>(bar.category) - category) <= kSameCategory) return &bar;
    }
    return nullptr;
}

/// The definition, with no thought of time.
BarShift plainShift(const UnplacedSeries& series, std::size_t own, const UnplacedBar& bar, SerieGrouping grouping,
                    float spacing) {
    double before = 0;
    double total = bar.width;
    double offset = 0;
    for (std::size_t s = 0; s < series.size(); ++s) {
        const UnplacedBar* const other = s == own ? nullptr : firstAt(series[s], bar.category);
        if (other == nullptr) continue;
        total += other->width + spacing;
        if (s > own) continue;
        before += other->width + spacing;
        const bool isSameWay = bar.value < bar.base ? other->value < bar.base : other->value > bar.base;
        if (bar.value != bar.base && isSameWay) offset += static_cast<double>(bar.base) - other->value;
    }
    if (grouping == SerieGrouping::Stacked) return {bar.category, static_cast<float>(offset)};
    return {static_cast<float>(bar.category - total / 2 + before + bar.width / 2.0), 0};
}

TEST(BarPlacement, IsThatOfThePlainDefinition) {
    std::mt19937 random(7);
    const auto upTo = [&random](unsigned limit) { return static_cast<float>(random() % limit); };
    for (int round = 0; round < 300; ++round) {
        UnplacedSeries series(2 + random() % 4);
        for (auto& bars : series) {
            bars.resize(random() % 12);
            for (UnplacedBar& bar : bars) bar = {upTo(3) / 4 + upTo(8) * 4e-6F, upTo(40), 20, 1 + upTo(9)};
        }
        for (const auto grouping : {SerieGrouping::Clustered, SerieGrouping::Stacked}) {
            const ShiftedSeries shifts = placeBars(series, grouping, 3);
            for (std::size_t s = 0; s < series.size(); ++s) {
                for (std::size_t p = 0; p < series[s].size(); ++p) {
                    const BarShift plain = plainShift(series, s, series[s][p], grouping, 3);
                    EXPECT_NEAR(shifts[s][p].category, plain.category, 1e-5) << "round " << round;
                    EXPECT_NEAR(shifts[s][p].value, plain.value, 1e-4) << "round " << round;
                }
            }
        }
    }
}

TEST(BarPlacement, GrowsWithTheBarsAlsoWhereTheyAlmostMeet) {
    UnplacedSeries series;
    for (int i = 0; i < 100'000; ++i) series.push_back({{static_cast<float>(i) * 4e-6F, 0, 50, 1}});
    const ShiftedSeries shifts = placeBars(series, SerieGrouping::Clustered, 0);
    EXPECT_NEAR(shifts[0][0].category, -1, 1e-4) << "first of the three that are within the tolerance";
    EXPECT_NEAR(shifts[1][0].category, -0.5, 1e-4) << "second of four";
    EXPECT_NEAR(shifts[50'000][0].category, 0.2, 1e-4) << "in the middle of five";
    EXPECT_NEAR(shifts[99'999][0].category, 1.4, 1e-4) << "last of three";
}

TEST(BarCaption, StandsAtTheEndOrTheBaseOrInTheMiddle) {
    const BarAnchors up{{50, 20}, {50, 60}};
    const BarAnchors down{{50, 60}, {50, 20}};
    const BarAnchors right{{60, 50}, {20, 50}};
    const BarAnchors left{{20, 50}, {60, 50}};
    const auto vertical = BarDirection::Vertical;
    const auto horizontal = BarDirection::Horizontal;
    const struct {
        CaptionedBar bar;
        const char* corners;  // default, outside-end, center, inside-end, inside-base, and a placement that is none
        const char* why;
    } cases[] = {
        {{up, vertical}, "40,16 40,16 40,45 40,34 40,56 50,20", "up"},
        {{down, vertical}, "40,74 40,74 40,45 40,56 40,34 50,60", "down"},
        {{right, horizontal}, "64,55 64,55 30,55 36,55 24,55 60,50", "right"},
        {{left, horizontal}, "-4,55 -4,55 30,55 24,55 36,55 20,50", "left"},
        {{up, vertical, 8}, "36,8 36,8 36,45 36,34 36,56 46,20", "a box, half a depth to the left"},
        {{down, vertical, 8}, "36,74 36,74 36,45 36,56 36,34 46,60", "a box that hangs"},
        {{up, vertical, 8, true, true}, "40,0 40,0 40,37 40,26 40,56 50,12", "a cylinder, a depth up"},
        {{right, horizontal, 8}, "72,55 72,55 30,55 36,55 24,55 60,50", "a box that lies is not moved"},
        {{right, horizontal, 8, true, true}, "80,55 80,55 38,55 44,55 24,55 68,50", "a cylinder that lies"},
        {{left, horizontal, 8, true, true}, "4,55 4,55 38,55 32,55 36,55 28,50", "and one to the left"},
        {{up, vertical, 8, false}, "40,8 40,8 40,45 40,34 40,56 50,20", "a line is not moved"},
        {{up, vertical, 8, false, true}, "40,8 40,8 40,45 40,34 40,56 50,20", "nor where there are cylinders"},
    };
    for (const auto& c : cases) {
        std::vector<PointF> corners;
        for (int placement = 0; placement <= 5; ++placement)
            corners.push_back(placeBarCaption(c.bar, static_cast<CaptionPlacement>(placement), {20, 10}, 4));
        EXPECT_EQ(shown(corners), c.corners) << c.why;
    }
    const BarAnchors flat{{50, 60}, {50, 60}};
    EXPECT_EQ(placeBarCaption({flat, vertical}, CaptionPlacement::Default, {20, 10}, 4), (PointF{40, 56}))
        << "a bar without length points up";
}

}  // namespace
}  // namespace VEXA::Testing
