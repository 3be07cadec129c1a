#include "vexa/support/core/Format.h"

#include <gtest/gtest.h>

#include <limits>

#include "vexa/support/core/Decimal.h"
#include "vexa/support/core/Math.h"

namespace VEXA {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Format, WritesNumbersForPeople) {
    struct Case {
        double value;
        const char* expected;
        const char* why;
    };
    const Case cases[] = {
        {0.0, "0", ""},
        {-0.0, "0", "no negative zero"},
        {0.1 + 0.1 + 0.1, "0.3", "what a person expects, not 0.30000000000000004"},
        {1.0 / 3.0, "0.333333", "six digits"},
        {-2.0 / 3.0, "-0.666667", "rounded, sign kept"},
        {static_cast<double>(0.1F), "0.1", "a float's noise lies behind the sixth digit"},
        {0.00012345678, "0.000123457", "leading zeros are not significant"},
        {1234567.5, "1234570", "six digits before the point too, filled with zeros"},
        {100000.5, "100001", "half away from zero"},
        {999999.5, "1000000", "the carry lengthens it"},
        {20240305, "20240305", "an integer that single precision cannot hold"},
        {999999999999999, "999999999999999", "last integer without exponent"},
        {1e15, "1e+15", "first number with exponent"},
        {999999999999999.9, "1000000000000000", "below 1e15, whatever it is rounded to"},
        {9007199254740991, "9.007199254740991e+15", "2^53 - 1 is an integer: all digits"},
        {1.2345678901234567e300, "1.23457e+300", "beyond 2^53 the last digits mean nothing"},
        {1e-5, "0.00001", "last fraction without exponent"},
        {0.99e-5, "9.9e-6", "first one with it"},
        {-1.234567e-7, "-1.23457e-7", ""},
        {5e-324, "5e-324", "smallest double"},
        {-kInfinity, "-Infinity", "shows that something is wrong"},
        {std::numeric_limits<double>::quiet_NaN(), "NaN", "likewise"},
    };
    for (const Case& c : cases) EXPECT_EQ(Format::number(c.value), c.expected) << c.why;
}

TEST(Format, WritesHundredths) {
    struct Case {
        float value;
        const char* expected;
        const char* why;
    };
    const Case cases[] = {
        {0.0F, "0", ""},
        {-0.0F, "0", "no negative zero"},
        {-0.004F, "0", "rounds to zero, so no sign"},
        {12.0F, "12", "no point without fraction"},
        {12.5F, "12.5", "no trailing zero"},
        {12.05F, "12.05", "the zero between point and digit stays"},
        {-0.25F, "-0.25", ""},
        {0.125F, "0.13", "an exact half goes away from zero"},
        {-0.125F, "-0.13", "on both sides"},
        {0.996F, "1", "carries into the whole part"},
        {1e9F, "1000000000", "the largest"},
        {3e38F, "1000000000", "beyond: cut"},
        {-std::numeric_limits<float>::infinity(), "-1000000000", "cut"},
        {std::numeric_limits<float>::quiet_NaN(), "0", ""},
    };
    for (const Case& c : cases) {
        std::string out = "M";
        Format::appendHundredths(c.value, out);
        EXPECT_EQ(out, std::string("M") + c.expected) << c.why;
    }
}

TEST(Format, WritesTheShortestDecimal) {
    struct Case {
        float value;
        const char* expected;
        const char* why;
    };
    const Case cases[] = {
        {0.1F, "0.1", "not 0.100000001490116"},
        {-0.0F, "0", "no negative zero"},
        {1.0F / 3.0F, "0.33333334", "eight digits are needed to come back"},
        {16777216.0F, "16777216", "2^24"},
        {1e-5F, "0.00001", "a little less than the double 1e-5, still plain"},
        {123456792.0F, "123456792", "as short as 123456790, and what the float holds"},
        {std::numeric_limits<float>::infinity(), "0", "JSON knows no infinity"},
        {std::numeric_limits<float>::quiet_NaN(), "0", "nor this"},
    };
    for (const Case& c : cases) {
        std::string out = "[";
        Format::appendShortest(c.value, out);
        EXPECT_EQ(out, std::string("[") + c.expected) << c.why;
    }
    for (const float value : {1e15F, 3.4028235e38F, 1e-45F, -9.9e-6F, 123456.79F, 9e14F}) {
        std::string out;
        Format::appendShortest(value, out);
        EXPECT_EQ(Format::parseFloat(out), value) << out << " does not read back";
        const bool plain = value >= 1e-5F && value < 1e15F;
        EXPECT_EQ(out.find('e') == out.npos, plain) << out;
    }
}

TEST(Format, ReadsReals) {
    struct Case {
        std::string text;
        std::optional<double> expected;
        const char* why;
    };
    const std::string zeros(400, '0');
    const Case cases[] = {
        {"1", 1.0, ""},
        {"-.5", -0.5, "no digit before the point"},
        {"5.", 5.0, "none behind it"},
        {"+2.5e3", 2500.0, "a plus, which from_chars refuses"},
        {"1E+2", 100.0, "capital exponent"},
        {"0.1", 0.1, ""},
        {"1" + zeros + "e-400", 1.0, "long, but in range"},
        {"0." + zeros + "1e401", 1.0, "likewise, small"},
        {"1e999", std::nullopt, "too large"},
        {"1" + zeros + "e-50", std::nullopt, "too large in spite of its exponent"},
        {"0." + zeros + "1e50", 0.0, "too small in spite of it"},
        {"-1" + zeros, std::nullopt, "too large without an exponent"},
        {"1e99999999999999999999", std::nullopt, "an exponent that no integer holds"},
        {"1e-999", 0.0, "too small is zero"},
        {"0." + zeros + "1", 0.0, "too small without an exponent"},
        {"1e-99999999999999999999", 0.0, "an exponent that no integer holds"},
        {"0e999", 0.0, "zero, whatever the exponent"},
        {"", std::nullopt, ""},
        {"+", std::nullopt, ""},
        {"-", std::nullopt, ""},
        {".", std::nullopt, ""},
        {"e5", std::nullopt, ""},
        {"1e", std::nullopt, "an exponent without digits"},
        {"+-1", std::nullopt, "two signs"},
        {"--1", std::nullopt, "two signs"},
        {"1,5", std::nullopt, "never the locale's comma"},
        {" 1", std::nullopt, "the whole text: the caller trims"},
        {"1 ", std::nullopt, "likewise"},
        {"1px", std::nullopt, ""},
        {"0x10", std::nullopt, "hexadecimal"},
        {"inf", std::nullopt, ""},
        {"-inf", std::nullopt, ""},
        {"+infinity", std::nullopt, ""},
        {"nan", std::nullopt, ""},
        {std::string("1\0", 2), std::nullopt, "NUL is a character like any other"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Format::parseDouble(c.text), c.expected) << c.text << ' ' << c.why;
        EXPECT_EQ(Format::parseFloat(c.text).has_value(), c.expected.has_value()) << c.text << ' ' << c.why;
    }
}

TEST(Format, ReadsSinglePrecision) {
    EXPECT_EQ(Format::parseFloat("1e39"), std::nullopt) << "a fine double, too large here";
    EXPECT_EQ(Format::parseFloat("-1e-60"), 0.0F) << "a fine double, too small here";
    EXPECT_EQ(Format::parseFloat("0.1"), 0.1F);
    EXPECT_EQ(Format::parseFloat("1.00000005960464478"), 1.00000012F)
        << "a hair above the middle of two floats; by way of a double it would round down to 1";
}

TEST(Format, ReadsIntegers) {
    struct Case {
        const char* text;
        std::optional<std::int32_t> expected;
    };
    const Case cases[] = {{"0", 0},
                          {"007", 7},
                          {"+12", 12},
                          {"-12", -12},
                          {"2147483647", 2147483647},
                          {"-2147483648", std::numeric_limits<int>::min()},
                          {"2147483648", std::nullopt},
                          {"", std::nullopt},
                          {"+", std::nullopt},
                          {"+-1", std::nullopt},
                          {"1.0", std::nullopt},
                          {"1e3", std::nullopt},
                          {" 1", std::nullopt},
                          {"1 ", std::nullopt}};
    for (const Case& c : cases) EXPECT_EQ(Format::parseInt(c.text), c.expected) << '"' << c.text << '"';
}

TEST(Decimal, RoundsTheShortestDecimal) {
    struct Case {
        Decimal value;
        int places;
        const char* expected;
        const char* why;
    };
    const Case cases[] = {
        {Decimal(0.15), 1, "0.2", "0.15 is a little less in binary; a person sees a half"},
        {Decimal(-0.15), 1, "-0.2", "away from zero"},
        {Decimal(1.005F), 2, "1.01", "the shortest decimal of the float, not of its double"},
        {Decimal(0.0449), 1, "0", "rounds once, not digit by digit"},
        {Decimal(0.05), 1, "0.1", "a digit where there was none"},
        {Decimal(0.005), 1, "0", "far below a half"},
        {Decimal(-0.4), 0, "0", "no negative zero"},
        {Decimal(0.5), 0, "1", "becomes the first digit"},
        {Decimal(9.96), 1, "10", "carries through all digits"},
        {Decimal(149.0), -2, "100", "places before the point"},
        {Decimal(150.0), -2, "200", ""},
        {Decimal(49.0), -2, "0", ""},
        {Decimal(1.5), 100, "1.5", "more places than digits: no zeros appear"},
        {Decimal(1.5), std::numeric_limits<int>::max(), "1.5", "does not overflow"},
        {Decimal(1e300), std::numeric_limits<int>::min(), "0", "does not overflow"},
    };
    for (Case c : cases) {
        c.value.roundToPlaces(c.places);
        std::string out;
        c.value.appendFixed(out);
        EXPECT_EQ(out, c.expected) << c.why;
    }
}

TEST(Decimal, TellsDigitsAndPoint) {
    const Decimal value(-1230.5);
    EXPECT_EQ(value.digits(), "12305");
    EXPECT_EQ(value.point(), 4);
    EXPECT_TRUE(value.isNegative());
    EXPECT_EQ(Decimal(0.00125).digits(), "125");
    EXPECT_EQ(Decimal(0.00125).point(), -2) << "0.125 times ten to the minus two";
    EXPECT_EQ(Decimal(1000.0).digits(), "1") << "no trailing zeros";
    EXPECT_TRUE(Decimal(-0.0).isZero());
    EXPECT_FALSE(Decimal(-0.0).isNegative());
    Decimal rounded(-0.4);
    rounded.roundToPlaces(0);
    EXPECT_TRUE(rounded.isZero() && !rounded.isNegative()) << "what was rounded away leaves no sign behind";
}

TEST(Math, CutsToTheRangeOfInt) {
    EXPECT_EQ(Math::toInt(-2.9), -2);
    EXPECT_EQ(Math::toInt(2147483647.9), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(Math::toInt(-1e300), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Math::toInt(std::numeric_limits<double>::quiet_NaN()), 0);
}

}  // namespace
}  // namespace VEXA
