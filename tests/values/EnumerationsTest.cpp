#include "vexa/support/values/Enumerations.h"

#include <string>

#include "TextForm.h"

namespace VEXA {
namespace {

using namespace Testing;

/// Checks that the keywords stand in the order of the ordinals, and what a message says of them. Which they are is seen
/// in docs/reference.md, and that they are written exactly in tests/schema.
template <class E>
void checkKeywords() {
    const auto keywords = findKeywords(ValueTraits<E>::name());
    SCOPED_TRACE(std::string(ValueTraits<E>::name()));
    EXPECT_GE(keywords.size(), 2U);
    std::string list;
    for (std::size_t i = 0; i < keywords.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(parsed<E>(keywords[i])), i) << keywords[i];
        EXPECT_EQ(ValueTraits<E>::print(static_cast<E>(i)), keywords[i]);
        list += (i > 0 ? ", " : "one of ") + std::string(keywords[i]);
    }
    EXPECT_EQ(ValueTraits<E>::expectation(), list);
}

template <class... E>
void checkKeywordsOfEach() {
    (checkKeywords<E>(), ...);
}

TEST(Enumerations, KeywordsByOrdinal) {
    checkKeywordsOfEach<AxisOrientation, AxisIntersection, AxisDataType, TickMarkStyle, TickMarkType, GridlineType,
                        DisplayValPlacement, DisplayValOrientation, LabelsPosition, SerieGrouping, BarShapeType,
                        MarkerType, CaptionPlacement, PieShapeType, SliceOrientation, LegendPlacement,
                        ReferenceOrientation, FontStyle, FontWeight, SLineCap, SLineJoin, GradientUnits,
                        GradientSpreadMethod>();
}

// Ordinals: 4 (family - 1) + variant, both counted from 1.
TEST(Enumerations, ThemesAreAFamilyWithAVariant) {
    const char* const families[] = {"gray", "colored", "blue", "red", "green", "purple", "aqua", "orange"};
    const char* const variants[] = {"flat", "white-outline", "gradient", "dark-outline"};
    int ordinal = 0;
    EXPECT_EQ(parsed<ChartTheme>("none"), ChartTheme::None);
    for (const char* family : families) {
        for (const char* variant : variants) {
            const std::string keyword = std::string(family) + "-" + variant;
            EXPECT_EQ(static_cast<int>(parsed<ChartTheme>(keyword)), ++ordinal) << keyword;
        }
        EXPECT_EQ(rewritten<ChartTheme>(family), kRefused) << "a family alone";
        EXPECT_NE(ValueTraits<ChartTheme>::expectation().find(family), std::string_view::npos);
    }
    EXPECT_EQ(ValueTraits<ChartTheme>::print(ChartTheme::AquaDarkOutline), "aqua-dark-outline");
    EXPECT_EQ(findKeywords("ChartTheme").size(), 33U);
    EXPECT_EQ(ValueTraits<SLineCap>::print(static_cast<SLineCap>(7)), "7") << "an ordinal without a name";
    EXPECT_TRUE(findKeywords("Length").empty()) << "a type without keywords";
}

}  // namespace
}  // namespace VEXA
