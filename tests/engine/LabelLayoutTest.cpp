#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/LabelLayout.h"
#include "vexa/cartesian/LabelTexts.h"

namespace VEXA::Testing {
namespace {

std::string shown(const RectF& rect) {
    return Testing::shown(PointF{rect.x, rect.y}) + ' ' + Testing::shown(PointF{rect.width, rect.height});
}

constexpr auto kHorizontal = DisplayValOrientation::Horizontal;
constexpr auto kPerpendicular = DisplayValOrientation::Perpendicular;
constexpr auto kDiagonal = DisplayValOrientation::Diagonal;

TEST(LabelLayout, AnchorsStandBesideTheAxis) {
    const struct {
        bool isVertical, isAtMaximum;
        DisplayValOrientation orientation;
        const char *anchor, *why;
    } cases[] = {
        {true, true, kHorizontal, "4,105", "right of the axis"},
        {true, true, kPerpendicular, "4,85", "read downward, so it starts above"},
        {true, true, kDiagonal, "4,103.54", "10 / 2√2 below"},
        {true, false, kHorizontal, "-34,105", "left of it, as wide as the text"},
        {true, false, kPerpendicular, "-4,115", "read upward, so it starts below"},
        {true, false, kDiagonal, "-25.21,124.75", "-4 - 30/√2, 100 + 35/√2"},
        {false, true, kHorizontal, "85,-4", "centred above"},
        {false, true, kPerpendicular, "105,-4", "upward from the axis"},
        {false, true, kDiagonal, "100,-4", "slanting away from it"},
        {false, false, kHorizontal, "85,14", "centred below"},
        {false, false, kPerpendicular, "105,34", "upward to the axis"},
        {false, false, kDiagonal, "78.79,32.28", "100 - 30/√2, 4 + 40/√2"},
    };
    for (const auto& c : cases) {
        const PointF anchor = labelAnchor({c.isVertical, c.isAtMaximum, c.orientation, 4}, 100, {30, 10});
        EXPECT_EQ(Testing::shown(anchor), c.anchor) << c.why;
    }
}

TEST(LabelLayout, BoxesHoldTheTurnedText) {
    EXPECT_EQ(shown(labelBox(kHorizontal, {50, 60}, {30, 10})), "50,50 30,10");
    EXPECT_EQ(shown(labelBox(kPerpendicular, {50, 60}, {30, 10})), "40,30 10,30");
    EXPECT_EQ(shown(labelBox(kDiagonal, {50, 60}, {30, 10})), "42.93,31.72 28.28,28.28") << "40/√2 to a side";
}

TEST(LabelLayout, OverlappingLabelsAreDroppedFromBothEnds) {
    const struct {
        std::vector<float> starts;
        std::vector<float> widths;
        bool isDiagonal;
        std::vector<std::size_t> kept;
        const char* why;
    } cases[] = {
        {{0, 10, 20, 30}, {10, 10, 10, 10}, false, {0, 1, 2, 3}, "boxes that touch do not overlap"},
        {{0, 10, 20, 30, 40, 50, 60}, {12, 12, 12, 12, 12, 12, 12}, false, {0, 2, 4, 6}, "every other one"},
        {{0, 10, 20, 30, 40, 50, 60}, {25, 25, 25, 25, 25, 25, 25}, false, {0, 3, 6}, "the middle one"},
        {{0, 10, 20, 30, 40, 50},
         {15, 15, 15, 15, 15, 15},
         false,
         {0, 2, 5},
         "an even number: 2 and 3 overlap, the first stays"},
        {{0, 10, 20, 30}, {45, 45, 45, 45}, false, {0}, "first and last overlap: only the first"},
        {{0, 20, 60, 70}, {10, 10, 20, 10}, false, {0, 3}, "one that overlaps keeps its partner out, too"},
        {{0, 10, 20, 30}, {18, 18, 18, 18}, true, {0, 1, 2, 3}, "diagonal ones count half"},
        {{0, 10}, {8, 8}, false, {0, 1}, "two"},
        {{0}, {8}, false, {0}, "one"},
        {{}, {}, false, {}, "none"},
    };
    for (const auto& c : cases) {
        Vector<RectF> boxes;
        for (std::size_t i = 0; i < c.starts.size(); ++i) boxes.push_back({c.starts[i], 0, c.widths[i], 10});
        EXPECT_EQ(keptLabels(boxes, c.isDiagonal), c.kept) << c.why;
    }
}

TEST(LabelLayout, MeasuresWhatIsKept) {
    const Vector<LabelText> texts = {{"ten", {18, 10}, 10}, {"twenty", {36, 10}, 20}, {"forty", {30, 10}, 40}};
    const LabelLayout all({false, false, kHorizontal, 4}, texts, /*isThinned*/ false);
    EXPECT_EQ(shown(all.box), "1,4 54,10") << "from 10 - 9 to 40 + 15";
    EXPECT_EQ(Testing::shown(PointF{all.size.width, all.size.height}), "36,10");
    const LabelLayout some({false, false, kHorizontal, 4}, texts, /*isThinned*/ true);
    ASSERT_EQ(some.labels.size(), 2U);
    EXPECT_EQ(some.labels[1].text, "forty");
    EXPECT_EQ(some.size.width, 30);
    EXPECT_EQ(shown(LabelLayout({false, false, kHorizontal, 4}, {}, true).box), "0,0 0,0");
}

TEST(LabelTexts, AReplacementThenTheFormatThenTheValueItself) {
    const Value date(DateTimeEx(2024, 3, 5));
    LabelTexts numbers("0.00", ValueKind::Number);
    numbers.replace(Value(0.1), "a tenth");
    numbers.replace(Value(0.1), "another");
    EXPECT_EQ(numbers.find(Value(static_cast<double>(0.1F))), "a tenth") << "equal in single precision; the first one";
    EXPECT_EQ(numbers.find(Value(2.0)), "2.00");
    LabelTexts dates("d MMM", ValueKind::Date);
    dates.replace(Value(DateTimeEx(2024, 3, 6)), "");
    EXPECT_EQ(dates.find(date), "5 Mar");
    EXPECT_EQ(dates.find(Value(DateTimeEx(2024, 3, 6))), "") << "a text may be taken away";
    LabelTexts texts("0.00", ValueKind::Text);
    texts.replace(Value(2024.0), "this year");
    EXPECT_EQ(texts.find(Value(String("2024"))), "this year") << "texts by their own text";
    EXPECT_EQ(texts.find(Value(String("2023"))), "2023") << "a text has no format";
    EXPECT_EQ(LabelTexts("", ValueKind::Date).find(date), "2024-03-05");
}

}  // namespace
}  // namespace VEXA::Testing
