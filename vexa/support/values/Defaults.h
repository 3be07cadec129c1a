#pragma once

#include "vexa/support/values/AxisUnits.h"
#include "vexa/support/values/Enumerations.h"
#include "vexa/support/values/Length.h"
#include "vexa/support/values/SColor.h"
#include "vexa/support/values/TXmlAttribute.h"
#include "vexa/support/values/Transform.h"
#include "vexa/support/values/Value.h"
#include "vexa/support/values/ViewBox.h"

/// The default values of the document's attributes, each one object shared by all. All lengths in px.
namespace VEXA {

extern const DefaultAttribute<String> DefaultStringAttribute;  ///< empty
extern const DefaultAttribute<String> DefaultFontFamily;       ///< sans-serif
extern const DefaultAttribute<bool> DefaultFalseBoolAttribute;
extern const DefaultAttribute<bool> DefaultTrueBoolAttribute;
extern const DefaultAttribute<float> DefaultFloatAttribute;       ///< 0
extern const DefaultAttribute<float> DefaultMinFloat;             ///< -2147483648
extern const DefaultAttribute<float> DefaultMaxFloat;             ///< 2147483648
extern const DefaultAttribute<float> DefaultAspect3DShading;      ///< 0.7
extern const DefaultAttribute<Length> DefaultLength;              ///< 0
extern const DefaultAttribute<Length> DefaultWidthLength;         ///< 20, thickness of a bar
extern const DefaultAttribute<Length> DefaultMarkerWidth;         ///< 8
extern const DefaultAttribute<Length> DefaultMarkerSpacing;       ///< 6
extern const DefaultAttribute<Length> DefaultCaptionOffset;       ///< 4
extern const DefaultAttribute<Length> DefaultTickLength;          ///< 5
extern const DefaultAttribute<Length> DefaultAspect3DSceneDepth;  ///< 20
extern const DefaultAttribute<Length> DefaultAspect3DChartDepth;  ///< 10
extern const DefaultAttribute<LengthOrPercent> DefaultOneHundredPercent;
extern const DefaultAttribute<LengthOrPercent> DefaultTitleWidth;     ///< 100%
extern const DefaultAttribute<LengthOrPercent> DefaultTitleHeight;    ///< 10%
extern const DefaultAttribute<LengthOrPercent> DefaultChartFontSize;  ///< 12
extern const DefaultAttribute<SLength> DefaultSLength;                ///< 0
extern const DefaultAttribute<SLength> DefaultStrokeWidth;            ///< 1
extern const DefaultAttribute<SNullableLength> DefaultSNullableLength;
extern const DefaultAttribute<FloatOrPercent> DefaultFloatOrPercent;        ///< 1
extern const DefaultAttribute<Vector<SLength>> DefaultSDashPattern;         ///< empty
extern const DefaultAttribute<Vector<Transform>> DefaultTransformList;      ///< empty
extern const DefaultAttribute<ViewBox> DefaultViewBox;                      ///< empty
extern const DefaultAttribute<Value> DefaultValue;                          ///< no value
extern const DefaultAttribute<Value> DefaultMinValue;                       ///< no value
extern const DefaultAttribute<Value> DefaultMaxValue;                       ///< no value
extern const DefaultAttribute<AxisUnits> DefaultAxisUnits;                  ///< automatic
extern const DefaultAttribute<SmartPtr<Color>> DefaultFillColor;            ///< black
extern const DefaultAttribute<SmartPtr<Color>> DefaultGradientStopColor;    ///< black
extern const DefaultAttribute<SColor> DefaultSFillColor;                    ///< black
extern const DefaultAttribute<SNullableColor> DefaultSNullableFillColor;    ///< not set
extern const DefaultAttribute<SNullableColor> DefaultSNullableStrokeColor;  ///< not set
extern const DefaultAttribute<ChartTheme> DefaultChartTheme;                ///< colored-flat
extern const DefaultAttribute<LabelsPosition> DefaultLabelsPosition;
extern const DefaultAttribute<FontStyle> DefaultFontStyle;
extern const DefaultAttribute<FontWeight> DefaultFontWeight;
extern const DefaultAttribute<SLineCap> DefaultSLineCap;
extern const DefaultAttribute<SLineJoin> DefaultSLineJoin;
extern const DefaultAttribute<GradientUnits> DefaultSGradientUnits;
extern const DefaultAttribute<GradientSpreadMethod> DefaultSGradientSpreadMethod;
extern const DefaultAttribute<MarkerType> DefaultMarkerType;
extern const DefaultAttribute<CaptionPlacement> DefaultCaptionPlacement;
extern const DefaultAttribute<TickMarkStyle> DefaultTickMarkStyle;
extern const DefaultAttribute<TickMarkType> DefaultTickMarkType;
extern const DefaultAttribute<GridlineType> DefaultGridlineType;
extern const DefaultAttribute<AxisOrientation> DefaultAxisOrientation;
extern const DefaultAttribute<AxisIntersection> DefaultAxisIntersection;
extern const DefaultAttribute<AxisDataType> DefaultAxisDataType;
extern const DefaultAttribute<DisplayValPlacement> DefaultDisplayValPlacement;
extern const DefaultAttribute<DisplayValOrientation> DefaultDisplayValOrientation;
extern const DefaultAttribute<SerieGrouping> DefaultSerieGrouping;
extern const DefaultAttribute<BarShapeType> DefaultBarShapeType;
extern const DefaultAttribute<PieShapeType> DefaultPieShapeType;
extern const DefaultAttribute<SliceOrientation> DefaultSliceOrientation;
extern const DefaultAttribute<LegendPlacement> DefaultLegendPlacement;
extern const DefaultAttribute<ReferenceOrientation> DefaultReferenceOrientation;

}  // namespace VEXA
