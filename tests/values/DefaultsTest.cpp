#include "vexa/support/values/Defaults.h"

#include <gtest/gtest.h>

#include <string>

namespace VEXA {
namespace {

template <class T>
std::string text(const DefaultAttribute<T>& attribute) {
    return ValueTraits<T>::print(attribute.getValue());
}

TEST(Defaults, MeanWhatTheDocumentationSays) {
    EXPECT_EQ(text(DefaultStringAttribute), "");
    EXPECT_EQ(text(DefaultFontFamily), "sans-serif");
    EXPECT_EQ(text(DefaultFalseBoolAttribute), "false");
    EXPECT_EQ(text(DefaultTrueBoolAttribute), "true");
    EXPECT_EQ(text(DefaultFloatAttribute), "0");
    EXPECT_EQ(DefaultMinFloat.getValue(), -0x1p31F);
    EXPECT_EQ(DefaultMaxFloat.getValue(), 0x1p31F);
    EXPECT_EQ(text(DefaultAspect3DShading), "0.7");
    EXPECT_EQ(text(DefaultLength), "0");
    EXPECT_EQ(text(DefaultWidthLength), "20");
    EXPECT_EQ(text(DefaultMarkerWidth), "8");
    EXPECT_EQ(text(DefaultMarkerSpacing), "6");
    EXPECT_EQ(text(DefaultCaptionOffset), "4");
    EXPECT_EQ(text(DefaultTickLength), "5");
    EXPECT_EQ(text(DefaultAspect3DSceneDepth), "20");
    EXPECT_EQ(text(DefaultAspect3DChartDepth), "10");
    EXPECT_EQ(text(DefaultOneHundredPercent), "100%");
    EXPECT_EQ(text(DefaultTitleWidth), "100%");
    EXPECT_EQ(text(DefaultTitleHeight), "10%");
    EXPECT_EQ(text(DefaultChartFontSize), "12");
    EXPECT_EQ(text(DefaultSLength), "0");
    EXPECT_EQ(text(DefaultStrokeWidth), "1");
    EXPECT_EQ(text(DefaultFloatOrPercent), "1");
    EXPECT_EQ(text(DefaultSDashPattern), "none");
    EXPECT_EQ(text(DefaultTransformList), "");
    EXPECT_EQ(text(DefaultViewBox), "0 0 0 0");
    EXPECT_EQ(text(DefaultAxisUnits), "automatic");
    EXPECT_EQ(text(DefaultFillColor), "#000000");
    EXPECT_EQ(text(DefaultGradientStopColor), "#000000");
    EXPECT_EQ(text(DefaultSFillColor), "#000000");
    EXPECT_EQ(text(DefaultChartTheme), "colored-flat");
    EXPECT_EQ(text(DefaultLabelsPosition), "fit");
    EXPECT_EQ(text(DefaultFontStyle), "normal");
    EXPECT_EQ(text(DefaultFontWeight), "normal");
    EXPECT_EQ(text(DefaultSLineCap), "butt");
    EXPECT_EQ(text(DefaultSLineJoin), "miter");
    EXPECT_EQ(text(DefaultSGradientUnits), "objectBoundingBox");
    EXPECT_EQ(text(DefaultSGradientSpreadMethod), "pad");
    EXPECT_EQ(text(DefaultMarkerType), "none");
    EXPECT_EQ(text(DefaultCaptionPlacement), "default");
    EXPECT_EQ(text(DefaultTickMarkStyle), "outside");
    EXPECT_EQ(text(DefaultTickMarkType), "major");
    EXPECT_EQ(text(DefaultGridlineType), "line");
    EXPECT_EQ(text(DefaultAxisOrientation), "automatic");
    EXPECT_EQ(text(DefaultAxisIntersection), "at-cross-value");
    EXPECT_EQ(text(DefaultAxisDataType), "automatic");
    EXPECT_EQ(text(DefaultDisplayValPlacement), "on-ticks");
    EXPECT_EQ(text(DefaultDisplayValOrientation), "horizontal");
    EXPECT_EQ(text(DefaultSerieGrouping), "clustered");
    EXPECT_EQ(text(DefaultBarShapeType), "box");
    EXPECT_EQ(text(DefaultPieShapeType), "pie");
    EXPECT_EQ(text(DefaultSliceOrientation), "clockwise");
    EXPECT_EQ(text(DefaultLegendPlacement), "right");
    EXPECT_EQ(text(DefaultReferenceOrientation), "rotate0");
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
