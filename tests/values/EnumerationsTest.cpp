#include "vexa/support/values/Enumerations.h"

#include <string>
#include <vector>

#include "TextForm.h"

namespace VEXA {
namespace {

using namespace Testing;

/// Checks that the keywords, in the order of the ordinals, are the only ones, and what a message says of them.
template <class E>
void checkKeywords(const std::vector<std::string>& keywords) {
    SCOPED_TRACE(std::string(ValueTraits<E>::name()));
    std::string list = "one of ";
    for (std::size_t i = 0; i < keywords.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(parsed<E>(keywords[i])), i) << keywords[i];
        EXPECT_EQ(ValueTraits<E>::print(static_cast<E>(i)), keywords[i]);
        EXPECT_EQ(rewritten<E>(" " + keywords[i] + "\n"), keywords[i]) << "white space at both ends";
        EXPECT_EQ(rewritten<E>(std::to_string(i)), kRefused) << "never a bare ordinal";
        list += (i > 0 ? ", " : "") + keywords[i];
    }
    EXPECT_EQ(ValueTraits<E>::expectation(), list);
    const auto known = findKeywords(ValueTraits<E>::name());
    EXPECT_EQ(std::vector<std::string>(known.begin(), known.end()), keywords);
    for (const std::string_view text : kNastyTexts) EXPECT_EQ(rewritten<E>(text), kRefused) << text;
}

TEST(Enumerations, KeywordsByOrdinal) {
    checkKeywords<AxisOrientation>({"automatic", "vertical", "horizontal"});
    checkKeywords<AxisIntersection>({"at-maximum", "at-minimum", "at-cross-value"});
    checkKeywords<AxisDataType>({"automatic", "number", "number-alt", "date", "text"});
    checkKeywords<TickMarkStyle>({"none", "inside", "cross", "outside"});
    checkKeywords<TickMarkType>({"major", "minor"});
    checkKeywords<GridlineType>({"none", "line"});
    checkKeywords<DisplayValPlacement>({"on-ticks", "between-ticks"});
    checkKeywords<DisplayValOrientation>({"horizontal", "perpendicular", "diagonal"});
    checkKeywords<LabelsPosition>({"fit", "overflow"});
    checkKeywords<SerieGrouping>({"overlapped", "clustered", "stacked"});
    checkKeywords<BarShapeType>({"box", "cylinder"});
    checkKeywords<MarkerType>({"none", "square", "dash", "circle", "triangle", "diamond"});
    checkKeywords<CaptionPlacement>({"default", "outside-end", "center", "inside-end", "inside-base"});
    checkKeywords<PieShapeType>({"pie", "doughnut"});
    checkKeywords<SliceOrientation>({"clockwise", "counter-clockwise"});
    checkKeywords<LegendPlacement>({"top", "left", "bottom", "right", "free"});
    checkKeywords<ReferenceOrientation>({"rotate0", "rotate90", "rotate180", "rotate270"});
    checkKeywords<FontStyle>({"normal", "italic", "oblique", "backslant"});
    checkKeywords<FontWeight>({"normal", "bold"});
    checkKeywords<SLineCap>({"butt", "round", "square"});
    checkKeywords<SLineJoin>({"miter", "round", "bevel"});
    checkKeywords<GradientUnits>({"objectBoundingBox", "userSpaceOnUse"});
    checkKeywords<GradientSpreadMethod>({"reflect", "repeat", "pad"});
}

TEST(Enumerations, KeywordsAreWrittenExactly) {
    EXPECT_EQ(rewritten<AxisIntersection>("At-Maximum"), kRefused);
    EXPECT_EQ(rewritten<AxisIntersection>("at-max"), kRefused);
    EXPECT_EQ(rewritten<GradientUnits>("objectboundingbox"), kRefused);
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
            EXPECT_EQ(ValueTraits<ChartTheme>::print(static_cast<ChartTheme>(ordinal)), keyword);
        }
        EXPECT_EQ(rewritten<ChartTheme>(family), kRefused) << "a family alone";
        EXPECT_NE(ValueTraits<ChartTheme>::expectation().find(family), std::string_view::npos);
    }
    EXPECT_EQ(rewritten<ChartTheme>("5"), kRefused) << "never a bare ordinal";
    EXPECT_EQ(findKeywords("ChartTheme").size(), 33U);
    EXPECT_EQ(ValueTraits<SLineCap>::print(static_cast<SLineCap>(7)), "7") << "an ordinal without a name";
    EXPECT_EQ(rewritten<SLineCap>("7"), kRefused) << "and is no text of a document";
    EXPECT_TRUE(findKeywords("Length").empty()) << "a type without keywords";
}

}  // namespace
}  // namespace VEXA
