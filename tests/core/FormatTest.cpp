#include "vexa/support/core/Format.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "vexa/support/core/Decimal.h"
#include "vexa/support/core/Math.h"

namespace VEXA {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct WriteCase {
    double value;
    const char* expected;
    const char* why;
};

/// Checks one of the writers of floats, behind text that must stay.
void expectAppended(void (*append)(float, std::string&), const WriteCase& c) {
    std::string out = "M";
    append(static_cast<float>(c.value), out);
    EXPECT_EQ(out, std::string("M") + c.expected) << c.why;
}

TEST(Format, WritesNumbersForPeople) {
    const WriteCase cases[] = {
        {-0.0, "0", "no negative zero"},
        {0.1 + 0.1 + 0.1, "0.3", "what a person expects, not 0.30000000000000004"},
        {-2.0 / 3.0, "-0.666667", "six digits, rounded, sign kept"},
        {0.00012345678, "0.000123457", "leading zeros are not significant"},
        {1234567.5, "1234570", "six digits before the point too, filled with zeros"},
        {999999.5, "1000000", "the carry lengthens it"},
        {999999999999999, "999999999999999", "last integer without exponent"},
        {1e15, "1e+15", "first number with exponent"},
        {999999999999999.9, "1000000000000000", "below 1e15, whatever it is rounded to"},
        {9007199254740991, "9.007199254740991e+15", "2^53 - 1 is an integer: all digits"},
        {1.2345678901234567e300, "1.23457e+300", "beyond 2^53 the last digits mean nothing"},
        {1e-5, "0.00001", "last fraction without exponent"},
        {0.99e-5, "9.9e-6", "first one with it"},
        {-kInfinity, "-Infinity", "shows that something is wrong"},
        {kNaN, "NaN", "likewise"},
    };
    for (const WriteCase& c : cases) EXPECT_EQ(Format::number(c.value), c.expected) << c.why;
}

TEST(Format, WritesHundredths) {
    const WriteCase cases[] = {
        {-0.004, "0", "rounds to zero, so no sign"},
        {12.5, "12.5", "no trailing zero"},
        {12.05, "12.05", "the zero between point and digit stays"},
        {-0.125, "-0.13", "an exact half goes away from zero"},
        {0.996, "1", "carries into the whole part"},
        {3e38, "1000000000", "cut to the largest"},
        {-kInfinity, "-1000000000", "cut"},
        {kNaN, "0", "no word for a number"},
    };
    for (const WriteCase& c : cases) expectAppended(Format::appendHundredths, c);
}

TEST(Format, WritesTheShortestDecimal) {
    const WriteCase cases[] = {
        {-0.0, "0", "no negative zero"},
        {1.0 / 3.0, "0.33333334", "eight digits are needed to come back"},
        {1e-5, "0.00001", "the float is a little less than the double, still plain"},
        {-9.9e-6, "-9.9e-06", "below that with an exponent"},
        {1e15, "1e+15", "the first with it"},
        {3.4028235e38, "3.4028235e+38", "the largest float"},
        {1e-45, "1e-45", "the smallest one; it has one digit"},
        {kInfinity, "0", "JSON knows no infinity"},
        {kNaN, "0", "nor this"},
    };
    for (const WriteCase& c : cases) expectAppended(Format::appendShortest, c);
}

TEST(Format, ReadsReals) {
    const std::string zeros(400, '0');
    const std::tuple<std::string, std::optional<double>, const char*> cases[] = {
        {"-.5", -0.5, "no digit before the point"},
        {"+2.5e3", 2500.0, "a plus, which from_chars refuses"},
        {"1" + zeros + "e-400", 1.0, "long, but in range"},
        {"1" + zeros + "e-50", std::nullopt, "too large in spite of its exponent"},
        {"0." + zeros + "1e50", 0.0, "too small in spite of it"},
        {"-1" + zeros, std::nullopt, "too large without an exponent"},
        {"0." + zeros + "1", 0.0, "too small without one"},
        {"1e99999999999999999999", std::nullopt, "an exponent that no integer holds"},
        {"1e-99999999999999999999", 0.0, "likewise"},
        {"0e999", 0.0, "zero, whatever the exponent"},
        {"", std::nullopt, "nothing"},
        {"+-1", std::nullopt, "two signs"},
        {"-inf", std::nullopt, "not finite"},
        {std::string("1\0", 2), std::nullopt, "NUL is a character like any other"},
    };
    for (const auto& [text, expected, why] : cases) {
        EXPECT_EQ(Format::parseDouble(text), expected) << text << ' ' << why;
        EXPECT_EQ(Format::parseFloat(text).has_value(), expected.has_value()) << text << ' ' << why;
    }
    EXPECT_EQ(Format::parseFloat("1e39"), std::nullopt) << "a fine double, too large here";
    EXPECT_EQ(Format::parseFloat("-1e-60"), 0.0F) << "a fine double, too small here";
    EXPECT_EQ(Format::parseFloat("1.00000005960464478"), 1.00000012F)
        << "a hair above the middle of two floats; by way of a double it would round down to 1";
}

TEST(Format, ReadsIntegers) {
    EXPECT_EQ(Format::parseInt("+007"), 7);
    EXPECT_EQ(Format::parseInt("2147483647"), 2147483647);
    EXPECT_EQ(Format::parseInt("-2147483648"), std::numeric_limits<std::int32_t>::min());
    for (const char* text : {"2147483648", "", "+", "+-1", "1.0", "1e3", " 1", "1 "}) {
        EXPECT_EQ(Format::parseInt(text), std::nullopt) << '"' << text << '"';
    }
}

TEST(Decimal, RoundsTheShortestDecimal) {
    const std::tuple<Decimal, int, const char*, const char*> cases[] = {
        {Decimal(-0.15), 1, "-0.2", "-0.15 is a little nearer to zero in binary; a person sees a half"},
        {Decimal(1.005F), 2, "1.01", "the shortest decimal of the float, not of its double"},
        {Decimal(0.0449), 1, "0", "rounds once, not digit by digit"},
        {Decimal(0.05), 1, "0.1", "a digit where there was none"},
        {Decimal(0.005), 1, "0", "far below a half"},
        {Decimal(-0.4), 0, "0", "no negative zero"},
        {Decimal(9.96), 1, "10", "carries through all digits"},
        {Decimal(150.0), -2, "200", "places before the point"},
        {Decimal(1.5), std::numeric_limits<int>::max(), "1.5", "no zeros appear, nothing overflows"},
        {Decimal(1e300), std::numeric_limits<int>::min(), "0", "nor here"},
    };
    for (auto [value, places, expected, why] : cases) {
        value.roundToPlaces(places);
        std::string out;
        value.appendFixed(out);
        EXPECT_EQ(out, expected) << why;
    }
}

TEST(Decimal, TellsDigitsAndPoint) {
    const Decimal value(-1230.5);
    EXPECT_EQ(value.digits(), "12305");
    EXPECT_EQ(value.point(), 4);
    EXPECT_TRUE(value.isNegative());
    EXPECT_EQ(Decimal(0.00125).point(), -2) << "0.125 times ten to the minus two";
    EXPECT_EQ(Decimal(1000.0).digits(), "1") << "no trailing zeros";
    EXPECT_TRUE(Decimal(-0.0).isZero() && !Decimal(-0.0).isNegative());
}

TEST(Math, CutsToTheRangeOfInt) {
    EXPECT_EQ(Math::toInt(-2.9), -2);
    EXPECT_EQ(Math::toInt(2147483647.9), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(Math::toInt(-1e300), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Math::toInt(kNaN), 0);
}

}  // namespace
}  // namespace VEXA
