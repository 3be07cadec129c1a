#include "vexa/support/drawing/TextDirection.h"

#include <gtest/gtest.h>

#include <tuple>

namespace VEXA {
namespace {

TEST(TextDirection, TheFirstLetterTells) {
    const std::tuple<const char*, std::u32string_view, bool> cases[] = {
        {"nothing to tell", U"", false},
        {"digits and signs alone", U"12.5 % (+)", false},
        {"Hebrew", U"\u05D0", true},
        {"Arabic", U"\u0645", true},
        {"Adlam, beyond 16 bits", U"\U0001E900", true},
        {"Phoenician, historic", U"\U00010900", true},
        {"presentation forms", U"\uFB2A", true},
        {"the ends of the Latin letters", U"(Z\u05D0", false},
        {"Devanagari runs from left to right", U"\u0915\u05D0", false},
        {"ideographs beyond 16 bits", U"\U00020000\u05D0", false},
        {"spaces, figures and signs are passed over", U" 2024: \u20AC \u2192 \u05D0 a", true},
        {"Arabic figures as well", U"\u0662\u0660 Sales \u0645", false},
        {"emoji as well", U"\U0001F600\u05D0", true},
        {"the marks of direction count", U"\u200F abc", true},
        {"from left to right", U"\u200E \u05D0", false},
        {"what is isolated does not count", U"\u2068abc\u2069 \u05D0", true},
        {"nor in two layers", U"\u2067\u2066a\u2069b\u2069 \u05D0", true},
        {"nor without an end", U"\u2068\u05D0", false},
        {"an end without a beginning is nothing", U"\u2069\u05D0", true},
        {"a multiplication sign stands among the letters of Latin-1", U"\u00D7\u05D0", true},
        {"no character at all", U"\U0010FFFF\u05D0", true},
    };
    for (const auto& [why, text, isToTheLeft] : cases) EXPECT_EQ(isRightToLeft(text), isToTheLeft) << why;
}

}  // namespace
}  // namespace VEXA
