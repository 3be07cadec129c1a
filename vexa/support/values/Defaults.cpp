#include "vexa/support/values/Defaults.h"

namespace VEXA {

namespace {

constexpr Length px(float number) noexcept { return Length(number); }
constexpr LengthOrPercent percent(float fraction) noexcept { return LengthOrPercent::percent(fraction); }

constinit Immortal<RGBColor::Shared> black(0, 0, 0);
constexpr SmartPtr<Color> blackColor() noexcept { return SmartPtr<Color>::immortal(&black.value); }

constinit const StaticStringData<10> sansSerif{{StringData::kImmortal, 10},
                                               {U's', U'a', U'n', U's', U'-', U's', U'e', U'r', U'i', U'f'}};

}  // namespace

constinit const DefaultAttribute<String> DefaultStringAttribute{String()};
constinit const DefaultAttribute<String> DefaultFontFamily{String(&sansSerif.header)};
constinit const DefaultAttribute<bool> DefaultFalseBoolAttribute{false};
constinit const DefaultAttribute<bool> DefaultTrueBoolAttribute{true};
constinit const DefaultAttribute<float> DefaultFloatAttribute{0.0F};
constinit const DefaultAttribute<float> DefaultMinFloat{-2147483648.0F};
constinit const DefaultAttribute<float> DefaultMaxFloat{2147483648.0F};
constinit const DefaultAttribute<float> DefaultAspect3DShading{0.7F};
constinit const DefaultAttribute<Length> DefaultLength{px(0)};
constinit const DefaultAttribute<Length> DefaultWidthLength{px(20)};
constinit const DefaultAttribute<Length> DefaultMarkerWidth{px(8)};
constinit const DefaultAttribute<Length> DefaultMarkerSpacing{px(6)};
constinit const DefaultAttribute<Length> DefaultCaptionOffset{px(4)};
constinit const DefaultAttribute<Length> DefaultTickLength{px(5)};
constinit const DefaultAttribute<Length> DefaultAspect3DSceneDepth{px(20)};
constinit const DefaultAttribute<Length> DefaultAspect3DChartDepth{px(10)};
constinit const DefaultAttribute<LengthOrPercent> DefaultOneHundredPercent{percent(1.0F)};
constinit const DefaultAttribute<LengthOrPercent> DefaultTitleWidth{percent(1.0F)};
constinit const DefaultAttribute<LengthOrPercent> DefaultTitleHeight{percent(0.1F)};
constinit const DefaultAttribute<LengthOrPercent> DefaultChartFontSize{LengthOrPercent(px(12))};
constinit const DefaultAttribute<SLength> DefaultSLength{SLength(0)};
constinit const DefaultAttribute<SLength> DefaultStrokeWidth{SLength(1)};
constinit const DefaultAttribute<SNullableLength> DefaultSNullableLength{SNullableLength()};
constinit const DefaultAttribute<FloatOrPercent> DefaultFloatOrPercent{FloatOrPercent(1)};
constinit const DefaultAttribute<Vector<SLength>> DefaultSDashPattern{Vector<SLength>()};
constinit const DefaultAttribute<Vector<Transform>> DefaultTransformList{Vector<Transform>()};
constinit const DefaultAttribute<ViewBox> DefaultViewBox{ViewBox()};
constinit const DefaultAttribute<Value> DefaultValue{Value()};
constinit const DefaultAttribute<Value> DefaultMinValue{Value()};
constinit const DefaultAttribute<Value> DefaultMaxValue{Value()};
constinit const DefaultAttribute<AxisUnits> DefaultAxisUnits{AxisUnits()};
constinit const DefaultAttribute<SmartPtr<Color>> DefaultFillColor{blackColor()};
constinit const DefaultAttribute<SmartPtr<Color>> DefaultGradientStopColor{blackColor()};
constinit const DefaultAttribute<SColor> DefaultSFillColor{SColor(blackColor())};
constinit const DefaultAttribute<SNullableColor> DefaultSNullableFillColor{SNullableColor()};
constinit const DefaultAttribute<SNullableColor> DefaultSNullableStrokeColor{SNullableColor()};
constinit const DefaultAttribute<ChartTheme> DefaultChartTheme{ChartTheme::ColoredFlat};
constinit const DefaultAttribute<LabelsPosition> DefaultLabelsPosition{LabelsPosition::Fit};
constinit const DefaultAttribute<FontStyle> DefaultFontStyle{FontStyle::Normal};
constinit const DefaultAttribute<FontWeight> DefaultFontWeight{FontWeight::Normal};
constinit const DefaultAttribute<SLineCap> DefaultSLineCap{SLineCap::Butt};
constinit const DefaultAttribute<SLineJoin> DefaultSLineJoin{SLineJoin::Miter};
constinit const DefaultAttribute<GradientUnits> DefaultSGradientUnits{GradientUnits::ObjectBoundingBox};
constinit const DefaultAttribute<GradientSpreadMethod> DefaultSGradientSpreadMethod{GradientSpreadMethod::Pad};
constinit const DefaultAttribute<MarkerType> DefaultMarkerType{MarkerType::None};
constinit const DefaultAttribute<CaptionPlacement> DefaultCaptionPlacement{CaptionPlacement::Default};
constinit const DefaultAttribute<TickMarkStyle> DefaultTickMarkStyle{TickMarkStyle::Outside};
constinit const DefaultAttribute<TickMarkType> DefaultTickMarkType{TickMarkType::Major};
constinit const DefaultAttribute<GridlineType> DefaultGridlineType{GridlineType::Line};
constinit const DefaultAttribute<AxisOrientation> DefaultAxisOrientation{AxisOrientation::Automatic};
constinit const DefaultAttribute<AxisIntersection> DefaultAxisIntersection{AxisIntersection::AtCrossValue};
constinit const DefaultAttribute<AxisDataType> DefaultAxisDataType{AxisDataType::Automatic};
constinit const DefaultAttribute<DisplayValPlacement> DefaultDisplayValPlacement{DisplayValPlacement::OnTicks};
constinit const DefaultAttribute<DisplayValOrientation> DefaultDisplayValOrientation{DisplayValOrientation::Horizontal};
constinit const DefaultAttribute<SerieGrouping> DefaultSerieGrouping{SerieGrouping::Clustered};
constinit const DefaultAttribute<BarShapeType> DefaultBarShapeType{BarShapeType::Box};
constinit const DefaultAttribute<PieShapeType> DefaultPieShapeType{PieShapeType::Pie};
constinit const DefaultAttribute<SliceOrientation> DefaultSliceOrientation{SliceOrientation::Clockwise};
constinit const DefaultAttribute<LegendPlacement> DefaultLegendPlacement{LegendPlacement::Right};
constinit const DefaultAttribute<ReferenceOrientation> DefaultReferenceOrientation{ReferenceOrientation::Rotate0};

}  // namespace VEXA
