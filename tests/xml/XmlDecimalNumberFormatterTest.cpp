#include "vexa/support/xml/XmlDecimalNumberFormatter.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "vexa/support/core/Limits.h"

namespace VEXA {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

std::string format(float value, const char* pattern, const char* decimal = "", const char* grouping = "",
                   const char* minus = "") {
    return XmlDecimalNumberFormatter::get().formatFloat(value, pattern, decimal, grouping, minus).toUtf8();
}

struct Case {
    float value;
    const char* pattern;
    const char* expected;
    const char* why;
};

template <std::size_t N>
void check(const Case (&cases)[N]) {
    for (const Case& c : cases) EXPECT_EQ(format(c.value, c.pattern), c.expected) << c.pattern << ": " << c.why;
}

TEST(DecimalNumberFormatter, PlacesForDigits) {
    check({
        {7, "000", "007", "filled with zeros"},
        {1234, "000", "1234", "a number is never cut"},
        {0, "#", "0", "zero shows a digit all the same"},
        {3, "0.00", "3.00", "filled behind the point"},
        {3.125F, "0.0##", "3.125", "or not"},
        {3, "0.##", "3", "no point without digits behind it"},
        {3, "0.", "3.", "but where the pattern ends in it"},
        {0.5F, "#.##", "0.5", "without any 0 a digit before the point all the same"},
        {0.5F, "#.00", ".50", "with one elsewhere there need not be"},
        {0.5F, ".##", ".5", "no place before the point"},
        {12.5F, ".0", "12.5", "but a number is never cut"},
        {0, ".##", ".0", "zero shows a digit"},
        {5, "0#", "05", "a # behind a 0 is a place that shows a digit"},
        {1.5F, "0.#0", "1.50", "a # before a 0 behind the point too"},
    });
}

TEST(DecimalNumberFormatter, RoundsHalfAwayFromZeroOnTheShortestDecimal) {
    check({
        {0.35F, "0.0", "0.4", "0.35 as written, not 0.349999994"},
        {-2.5F, "0", "-3", "away from zero, not to even"},
        {9.995F, "0.00", "10.00", "the carry lengthens it"},
        {-0.004F, "0.00", "0.00", "what rounds to zero has no sign"},
        {-0.005F, "0.00", "-0.01", "this is not zero"},
    });
}

TEST(DecimalNumberFormatter, GroupsByTheDistanceOfTheLastComma) {
    check({
        {-123456, "#,##0", "-123,456", "none behind the sign"},
        {1234567, "#,##0", "1,234,567", ""},
        {12345678, "#,####", "1234,5678", "groups of four"},
        {1234567, "#,##,##0", "1,234,567", "the last comma counts"},
        {1234, "0,0", "1,2,3,4", "groups of one"},
        {7, "0,000", "0,007", "zeros are grouped too"},
        {1234, "#,", "1234", "a comma at the end groups nothing"},
        {1234.5F, "0.0,0", "1234.50", "no groups behind the point"},
    });
}

TEST(DecimalNumberFormatter, PercentAndPerMille) {
    check({
        {0.256F, "0.0%", "25.6%", ""},
        {0.29F, "0%", "29%", "exactly, where a product of floats is 28.999999"},
        {0.25F, "%0", "%25", "in front"},
        {0.0256F, "0.0\xE2\x80\xB0", "25.6\xE2\x80\xB0", "per mille"},
        {0.256F, "0.0'%'", "0.3%", "quoted it is only a character"},
        {-0.001F, "0%", "0%", "rounded after the multiplication"},
    });
}

TEST(DecimalNumberFormatter, WhatStandsAroundTheDigits) {
    check({
        {-5, "$0.00", "-$5.00", "the sign comes first"},
        {5, "0 \xE2\x82\xAC", "5 \xE2\x82\xAC", "beyond ASCII"},
        {5, "'#'0", "#5", "quoted"},
        {5, "0 'per ''pair'''", "5 per 'pair'", "two quotes are one, inside quotes"},
        {5, "0''", "5'", "and outside"},
        {5, "0'it", "5it", "a quote not closed"},
        {5, "approx. 0.0", "approx. 5.0", "a point without digits around it is a character"},
        {5, "0.0 (1.0)", "5.0 (1.0)", "digits once; later ones are characters"},
        {5, "0.0.0", "5.0.0", "a second point ends them"},
        {-5, "0;(0)", "(5)", "a form for negative numbers"},
        {5, "0;(0)", "5", "does not touch positive ones"},
        {-1234.5F, "#,##0.00;(0)", "(1,234.50)", "its digits do not count"},
        {-5, "0;", "-5", "an empty form: the sign must show"},
        {-5, "0 m;0 m", "-5 m", "a form like the positive one: likewise"},
        {-5, "0;(0);[0]", "(5);[0]", "two forms; the rest is characters"},
        {-0.4F, "0;(0)", "0", "what rounds to zero is not negative"},
        {5, "'a;b' 0", "a;b 5", "a quoted semicolon"},
    });
}

TEST(DecimalNumberFormatter, WithoutPlacesTheNumbersOwnText) {
    check({
        {0.1F, "", "0.1", "no pattern"},
        {1.0F / 3, "", "0.333333", "six digits"},
        {1234567, "", "1234567", "integers exactly"},
        {-2.5F, "EUR ", "-EUR 2.5", "behind the characters"},
        {0.5F, "%", "%50", ""},
        {5, ",.", ",.5", "points and commas alone are characters"},
    });
}

TEST(DecimalNumberFormatter, ExtremeNumbers) {
    check({
        {3e38F, "#,##0", "300,000,000,000,000,000,000,000,000,000,000,000,000",
         "the digits that are known, then zeros"},
        {1e-45F, "0.00", "0.00", "smallest number"},
        {16777216, "0", "16777216", "last integer that single precision counts to"},
        {kInfinity, "0.00", "Infinity", ""},
        {-kInfinity, "0;(0)", "(Infinity)", "in its form"},
        {-kInfinity, "0 m", "-Infinity m", ""},
        {std::numeric_limits<float>::quiet_NaN(), "$0.00", "NaN", "nothing around what is no number"},
    });
}

TEST(DecimalNumberFormatter, Settings) {
    EXPECT_EQ(format(-1234.5F, "#,##0.00", ",", "."), "-1.234,50") << "German separators";
    EXPECT_EQ(format(1234.5F, "#,##0.0", "", "\u00a0"), "1\u00a0234.5") << "an empty setting leaves the usual one";
    EXPECT_EQ(format(-5, "0;-0 CR", "", "", "~"), "~5 CR") << "a hyphen in a form is the minus sign";
    EXPECT_EQ(format(-5, "0;'-'0", "", "", "~"), "-5") << "quoted it is a hyphen";
    EXPECT_EQ(format(-5, "0", "", "", "minus "), "minus 5") << "more than one character";
}

TEST(Limits, NumberPattern) {
    EXPECT_EQ(format(7, std::string(5'000'000, '0').c_str()).size(), Limits::kNumberPattern);
    EXPECT_EQ(format(7, (std::string(5'000'000, 'x') + "0").c_str()).size(), Limits::kNumberPattern + 1);
    EXPECT_EQ(format(0.5F, ("0." + std::string(5'000'000, '0')).c_str()).size(), Limits::kNumberPattern);
    EXPECT_EQ(format(7, std::string(5'000'000, '\'').c_str()).size(), Limits::kNumberPattern / 2 + 1);
    EXPECT_EQ(format(7, std::string(5'000'000, ',').c_str()).size(), Limits::kNumberPattern + 1);
}

TEST(Limits, NumberSeparator) {
    const std::string many(5'000'000, '_');
    EXPECT_EQ(format(-1234.5F, "#,##0.0", many.c_str(), many.c_str(), many.c_str()).size(),
              5 + 3 * Limits::kNumberSeparator);
}

}  // namespace
}  // namespace VEXA
