#pragma once

#include <cstdint>
#include <span>

#include "vexa/support/drawing/Brush.h"
#include "vexa/support/values/ValueTraits.h"

/// The document's enumerations. Keywords are the names in lower case with hyphens; their tables are in the source.
/// Underlying types are fixed: an ordinal without a name is a legal value that the chart classes refuse by name.
namespace VEXA {

enum class AxisOrientation : std::int32_t { Automatic = 0, Vertical = 1, Horizontal = 2 };
enum class AxisIntersection : std::int32_t { AtMaximum = 0, AtMinimum = 1, AtCrossValue = 2 };
enum class AxisDataType : std::int32_t { Automatic = 0, Number = 1, NumberAlt = 2, Date = 3, Text = 4 };
enum class TickMarkStyle : std::int32_t { None = 0, Inside = 1, Cross = 2, Outside = 3 };
enum class TickMarkType : std::int32_t { Major = 0, Minor = 1 };
enum class GridlineType : std::int32_t { None = 0, Line = 1 };
enum class DisplayValPlacement : std::int32_t { OnTicks = 0, BetweenTicks = 1 };
enum class DisplayValOrientation : std::int32_t { Horizontal = 0, Perpendicular = 1, Diagonal = 2 };
enum class LabelsPosition : std::int32_t { Fit = 0, Overflow = 1 };
enum class SerieGrouping : std::int32_t { Overlapped = 0, Clustered = 1, Stacked = 2 };
enum class BarShapeType : std::int32_t { Box = 0, Cylinder = 1 };
enum class MarkerType : std::int32_t { None = 0, Square = 1, Dash = 2, Circle = 3, Triangle = 4, Diamond = 5 };
enum class CaptionPlacement : std::int32_t { Default = 0, OutsideEnd = 1, Center = 2, InsideEnd = 3, InsideBase = 4 };
enum class PieShapeType : std::int32_t { Pie = 0, Doughnut = 1 };
enum class SliceOrientation : std::int32_t { Clockwise = 0, CounterClockwise = 1 };
enum class LegendPlacement : std::int32_t { Top = 0, Left = 1, Bottom = 2, Right = 3, Free = 4 };
enum class ReferenceOrientation : std::int32_t { Rotate0 = 0, Rotate90 = 1, Rotate180 = 2, Rotate270 = 3 };
enum class FontStyle : std::int32_t { Normal = 0, Italic = 1, Oblique = 2, Backslant = 3 };
enum class FontWeight : std::int32_t { Normal = 0, Bold = 1 };
enum class SLineCap : std::int32_t { Butt = 0, Round = 1, Square = 2 };
enum class SLineJoin : std::int32_t { Miter = 0, Round = 1, Bevel = 2 };

/// 0 no theme; 1 to 32 = 4 × (family - 1) + variant; families gray, colored, blue, red, green, purple, aqua, orange;
/// variants flat, white-outline, gradient, dark-outline.
enum class ChartTheme : std::int32_t {
    None = 0,
    // clang-format off
    GrayFlat = 1, GrayWhiteOutline, GrayGradient, GrayDarkOutline,
    ColoredFlat = 5, ColoredWhiteOutline, ColoredGradient, ColoredDarkOutline,
    BlueFlat = 9, BlueWhiteOutline, BlueGradient, BlueDarkOutline,
    RedFlat = 13, RedWhiteOutline, RedGradient, RedDarkOutline,
    GreenFlat = 17, GreenWhiteOutline, GreenGradient, GreenDarkOutline,
    PurpleFlat = 21, PurpleWhiteOutline, PurpleGradient, PurpleDarkOutline,
    AquaFlat = 25, AquaWhiteOutline, AquaGradient, AquaDarkOutline,
    OrangeFlat = 29, OrangeWhiteOutline, OrangeGradient, OrangeDarkOutline,
    // clang-format on
};

VEXA_VALUE_TRAITS(AxisOrientation);
VEXA_VALUE_TRAITS(AxisIntersection);
VEXA_VALUE_TRAITS(AxisDataType);
VEXA_VALUE_TRAITS(TickMarkStyle);
VEXA_VALUE_TRAITS(TickMarkType);
VEXA_VALUE_TRAITS(GridlineType);
VEXA_VALUE_TRAITS(DisplayValPlacement);
VEXA_VALUE_TRAITS(DisplayValOrientation);
VEXA_VALUE_TRAITS(LabelsPosition);
VEXA_VALUE_TRAITS(SerieGrouping);
VEXA_VALUE_TRAITS(BarShapeType);
VEXA_VALUE_TRAITS(MarkerType);
VEXA_VALUE_TRAITS(CaptionPlacement);
VEXA_VALUE_TRAITS(PieShapeType);
VEXA_VALUE_TRAITS(SliceOrientation);
VEXA_VALUE_TRAITS(LegendPlacement);
VEXA_VALUE_TRAITS(ReferenceOrientation);
VEXA_VALUE_TRAITS(FontStyle);
VEXA_VALUE_TRAITS(FontWeight);
VEXA_VALUE_TRAITS(SLineCap);
VEXA_VALUE_TRAITS(SLineJoin);
VEXA_VALUE_TRAITS(ChartTheme);
VEXA_VALUE_TRAITS(GradientUnits);
VEXA_VALUE_TRAITS(GradientSpreadMethod);

/// The keywords of the enumeration whose traits have that name, by ordinal; empty for other types.
std::span<const std::string_view> findKeywords(std::string_view typeName) noexcept;

}  // namespace VEXA
