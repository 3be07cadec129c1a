#include "vexa/support/values/Defaults.h"

#include <gtest/gtest.h>

#include <string>

namespace VEXA {
namespace {

/// The texts of the defaults, each with a semicolon behind it.
template <class... T>
std::string texts(const DefaultAttribute<T>&... attributes) {
    return ((ValueTraits<T>::print(attributes.getValue()) + ";") + ...);
}

TEST(Defaults, MeanWhatTheDocumentationSays) {
    EXPECT_EQ(texts(DefaultStringAttribute, DefaultFontFamily, DefaultSGradientUnits),
              ";sans-serif;objectBoundingBox;");
    EXPECT_EQ(texts(DefaultFalseBoolAttribute, DefaultTrueBoolAttribute, DefaultSGradientSpreadMethod),
              "false;true;pad;");
    EXPECT_EQ(texts(DefaultFloatAttribute, DefaultAspect3DShading, DefaultFloatOrPercent), "0;0.7;1;");
    EXPECT_EQ(DefaultMinFloat.getValue(), -0x1p31F);
    EXPECT_EQ(DefaultMaxFloat.getValue(), 0x1p31F);
    EXPECT_EQ(texts(DefaultLength, DefaultWidthLength, DefaultMarkerWidth, DefaultMarkerSpacing), "0;20;8;6;");
    EXPECT_EQ(texts(DefaultCaptionOffset, DefaultTickLength, DefaultSLength, DefaultStrokeWidth), "4;5;0;1;");
    EXPECT_EQ(texts(DefaultAspect3DSceneDepth, DefaultAspect3DChartDepth, DefaultChartFontSize), "20;10;12;");
    EXPECT_EQ(texts(DefaultOneHundredPercent, DefaultTitleWidth, DefaultTitleHeight), "100%;100%;10%;");
    EXPECT_EQ(texts(DefaultSDashPattern, DefaultTransformList, DefaultViewBox), "none;;0 0 0 0;");
    EXPECT_EQ(texts(DefaultFillColor, DefaultGradientStopColor, DefaultSFillColor), "#000000;#000000;#000000;");
    EXPECT_EQ(texts(DefaultChartTheme, DefaultReferenceOrientation), "colored-flat;rotate0;");
    EXPECT_EQ(texts(DefaultLabelsPosition, DefaultFontStyle, DefaultFontWeight), "fit;normal;normal;");
    EXPECT_EQ(texts(DefaultSLineCap, DefaultSLineJoin, DefaultLegendPlacement), "butt;miter;right;");
    EXPECT_EQ(texts(DefaultMarkerType, DefaultCaptionPlacement, DefaultGridlineType), "none;default;line;");
    EXPECT_EQ(texts(DefaultTickMarkStyle, DefaultTickMarkType, DefaultSliceOrientation), "outside;major;clockwise;");
    EXPECT_EQ(texts(DefaultAxisOrientation, DefaultAxisIntersection), "automatic;at-cross-value;");
    EXPECT_EQ(texts(DefaultAxisUnits, DefaultAxisDataType), "automatic;automatic;");
    EXPECT_EQ(texts(DefaultDisplayValPlacement, DefaultDisplayValOrientation), "on-ticks;horizontal;");
    EXPECT_EQ(texts(DefaultSerieGrouping, DefaultBarShapeType, DefaultPieShapeType), "clustered;box;pie;");
}

TEST(Defaults, SomeStandForNothing) {
    EXPECT_TRUE(DefaultValue.getValue().isNone());
    EXPECT_TRUE(DefaultMinValue.getValue().isNone());
    EXPECT_TRUE(DefaultMaxValue.getValue().isNone());
    EXPECT_TRUE(DefaultSNullableLength.getValue().isNull());
    EXPECT_TRUE(DefaultSNullableFillColor.getValue().isNull());
    EXPECT_TRUE(DefaultSNullableStrokeColor.getValue().isNull());
}

// Made before any constructor runs: objects of other files may look at them while they are being made.
const std::string familyAtStart = DefaultFontFamily.getValue().toUtf8();
const bool blackAtStart = DefaultFillColor.getValue()->rgb() == 0;

TEST(Defaults, AreThereBeforeAnyConstructorRuns) {
    EXPECT_EQ(familyAtStart, "sans-serif");
    EXPECT_TRUE(blackAtStart);
}

TEST(Defaults, AreNeverCounted) {
    const String family = DefaultFontFamily.getValue();
    const SmartPtr<Color> black = DefaultFillColor.getValue();
    EXPECT_EQ(family.view().data(), DefaultFontFamily.getValue().view().data()) << "shared, not copied";
    EXPECT_TRUE(black->isImmortal());
    EXPECT_EQ(DefaultFillColor.getValue().get(), DefaultGradientStopColor.getValue().get()) << "one black for all";
}

}  // namespace
}  // namespace VEXA
