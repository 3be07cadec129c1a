#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/AxisScale.h"

namespace VEXA::Testing {
namespace {

Value number(double value) { return Value(value); }

/// A scale of the texts A, B, …
struct Texts {
    explicit Texts(int count) {
        for (int i = 0; i < count; ++i) index.add(Value(String(std::string(1, static_cast<char>('A' + i)))));
    }
    AxisScale scale(bool isVertical, bool isBetweenTicks) const {
        return {{ValueKind::Text, isVertical, isBetweenTicks}, {}, index.values(), index};
    }
    ValueIndex index;
};

TEST(AxisScale, PlacesTextsOnTicksOrBetweenThem) {
    const struct {
        int count;
        bool isVertical, isBetween;
        float length;
        std::string labels, ticks;
        float slot;
        const char* why;
    } cases[] = {
        {3, false, false, 300, "0 150 300", "0 150 300", 75, "from end to end"},
        {3, false, true, 300, "50 150 250", "100 200 300", 100, "in the middle of slots"},
        {4, false, true, 400, "50 150 250 350", "100 200 300 400", 100, "no tick at the start"},
        {3, true, false, 300, "300 150 0", "300 150 0", 75, "upright from the foot"},
        {4, true, true, 400, "350 250 150 50", "400 300 200 100", 100, "ticks below their labels"},
        {1, false, false, 300, "0", "0", 150, "a single text lies at the start"},
        {1, false, true, 300, "150", "300", 300, "or fills the axis"},
        {0, false, true, 300, "", "", 0, "no texts"},
    };
    for (const auto& c : cases) {
        const Texts texts(c.count);
        const AxisScale scale = texts.scale(c.isVertical, c.isBetween);
        EXPECT_EQ(shown(scale.labelPositions(c.length)), c.labels) << c.why;
        EXPECT_EQ(shown(scale.tickPositions(c.length)), c.ticks) << c.why;
        EXPECT_EQ(scale.slotWidth(c.length), c.slot) << c.why;
    }
    const Texts texts(3);
    EXPECT_EQ(texts.scale(false, true).position(300, Value(String("C"))), 250);
    EXPECT_EQ(texts.scale(false, true).position(300, Value(String("?"))), 50) << "what the axis does not have";
    EXPECT_EQ(texts.scale(true, false).crossPosition(300), 300) << "others cross at the first text";
}

TEST(AxisScale, TextsAreFoundByTheirOwnText) {
    ValueIndex index;
    for (const char* text : {"before", "2024", "0.3"}) index.add(Value(String(text)));
    const AxisScale scale({ValueKind::Text, false, false}, {}, index.values(), index);
    EXPECT_EQ(scale.relativePosition(number(2024)), 0.5F);
    EXPECT_EQ(scale.relativePosition(number(0.1 + 0.2)), 1) << "as it is shown";
}

TEST(AxisScale, PlacesNumbersAndDates) {
    const ValueIndex none;
    const auto position = [&](ValueKind kind, bool isVertical, const AxisRange& range, const Value& value) {
        return AxisScale({kind, isVertical, false}, range, {}, none).position(200, value);
    };
    const AxisRange range{number(-10), number(40)};
    EXPECT_EQ(position(ValueKind::Number, false, range, number(0)), 40);
    EXPECT_EQ(position(ValueKind::Number, true, range, number(0)), 160);
    EXPECT_EQ(position(ValueKind::Number, false, range, number(65)), 300) << "beyond the end";
    EXPECT_EQ(position(ValueKind::Number, false, {number(5), number(5)}, number(7)), 0) << "no extent";
    EXPECT_EQ(position(ValueKind::Number, false, {number(-3e38), number(3e38)}, number(0)), 100) << "an endless one";
    EXPECT_EQ(position(ValueKind::None, false, range, number(0)), 0);

    const auto at = [](int month, int day, int hour = 0) { return Value(DateTimeEx(2024, month, day, hour)); };
    const AxisRange dates{at(3, 1, 12), at(3, 11, 18)};
    EXPECT_EQ(position(ValueKind::Date, false, dates, at(3, 6)), 100) << "5 of 10 days, whatever the hours";
    EXPECT_EQ(position(ValueKind::Date, false, dates, at(3, 11, 18)), 200);
    EXPECT_EQ(position(ValueKind::Date, false, dates, at(2, 1)), 0) << "not before the first";
    EXPECT_EQ(position(ValueKind::Date, false, dates, at(3, 21)), 400);
    EXPECT_EQ(position(ValueKind::Date, false, {at(3, 1, 1), at(3, 1, 2)}, at(3, 2)), 0) << "within one day";
    const AxisRange centuries{Value(DateTimeEx(1600, 1, 1)), Value(DateTimeEx(2000, 1, 1))};
    EXPECT_EQ(position(ValueKind::Date, false, centuries, Value(DateTimeEx(2000, 1, 1))), 200) << "146,097 days";
}

TEST(AxisScale, TheOtherAxisCrossesAtZeroOrAtTheSmallestValue) {
    const struct {
        double min, max;
        float horizontal, vertical;
        const char* why;
    } cases[] = {
        {-10, 40, 40, 160, "zero is inside"},
        {0, 40, 0, 200, "at the start"},
        {-25, 0, 200, 0, "at the end"},
        {10, 40, 0, 200, "above zero: at the smallest value"},
        {-40, -20, 400, -200, "below zero: zero lies outside"},
        {0, 0, 0, 200, "no extent"},
    };
    const ValueIndex none;
    for (const auto& c : cases) {
        for (const bool isBetween : {false, true}) {
            const auto cross = [&](bool isVertical) {
                // Without values a slot has no width: placing between ticks moves nothing here.
                return AxisScale({ValueKind::Number, isVertical, isBetween}, {number(c.min), number(c.max)}, {}, none)
                    .crossPosition(200);
            };
            EXPECT_EQ(cross(false), c.horizontal) << c.why;
            EXPECT_EQ(cross(true), c.vertical) << c.why;
        }
    }
}

}  // namespace
}  // namespace VEXA::Testing
