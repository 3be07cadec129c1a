#include "vexa/support/values/Enumerations.h"

#include <algorithm>

#include "vexa/support/values/Keywords.h"

namespace VEXA {

namespace {

constexpr Keyword<AxisOrientation> kAxisOrientation[] = {
    {AxisOrientation::Automatic, "automatic"},
    {AxisOrientation::Vertical, "vertical"},
    {AxisOrientation::Horizontal, "horizontal"},
};
constexpr Keyword<AxisIntersection> kAxisIntersection[] = {
    {AxisIntersection::AtMaximum, "at-maximum"},
    {AxisIntersection::AtMinimum, "at-minimum"},
    {AxisIntersection::AtCrossValue, "at-cross-value"},
};
constexpr Keyword<AxisDataType> kAxisDataType[] = {
    {AxisDataType::Automatic, "automatic"}, {AxisDataType::Number, "number"}, {AxisDataType::NumberAlt, "number-alt"},
    {AxisDataType::Date, "date"},           {AxisDataType::Text, "text"},
};
constexpr Keyword<TickMarkStyle> kTickMarkStyle[] = {
    {TickMarkStyle::None, "none"},
    {TickMarkStyle::Inside, "inside"},
    {TickMarkStyle::Cross, "cross"},
    {TickMarkStyle::Outside, "outside"},
};
constexpr Keyword<TickMarkType> kTickMarkType[] = {
    {TickMarkType::Major, "major"},
    {TickMarkType::Minor, "minor"},
};
constexpr Keyword<GridlineType> kGridlineType[] = {
    {GridlineType::None, "none"},
    {GridlineType::Line, "line"},
};
constexpr Keyword<DisplayValPlacement> kDisplayValPlacement[] = {
    {DisplayValPlacement::OnTicks, "on-ticks"},
    {DisplayValPlacement::BetweenTicks, "between-ticks"},
};
constexpr Keyword<DisplayValOrientation> kDisplayValOrientation[] = {
    {DisplayValOrientation::Horizontal, "horizontal"},
    {DisplayValOrientation::Perpendicular, "perpendicular"},
    {DisplayValOrientation::Diagonal, "diagonal"},
};
constexpr Keyword<LabelsPosition> kLabelsPosition[] = {
    {LabelsPosition::Fit, "fit"},
    {LabelsPosition::Overflow, "overflow"},
};
constexpr Keyword<SerieGrouping> kSerieGrouping[] = {
    {SerieGrouping::Overlapped, "overlapped"},
    {SerieGrouping::Clustered, "clustered"},
    {SerieGrouping::Stacked, "stacked"},
};
constexpr Keyword<BarShapeType> kBarShapeType[] = {
    {BarShapeType::Box, "box"},
    {BarShapeType::Cylinder, "cylinder"},
};
constexpr Keyword<MarkerType> kMarkerType[] = {
    {MarkerType::None, "none"},     {MarkerType::Square, "square"},     {MarkerType::Dash, "dash"},
    {MarkerType::Circle, "circle"}, {MarkerType::Triangle, "triangle"}, {MarkerType::Diamond, "diamond"},
};
constexpr Keyword<CaptionPlacement> kCaptionPlacement[] = {
    {CaptionPlacement::Default, "default"},        {CaptionPlacement::OutsideEnd, "outside-end"},
    {CaptionPlacement::Center, "center"},          {CaptionPlacement::InsideEnd, "inside-end"},
    {CaptionPlacement::InsideBase, "inside-base"},
};
constexpr Keyword<PieShapeType> kPieShapeType[] = {
    {PieShapeType::Pie, "pie"},
    {PieShapeType::Doughnut, "doughnut"},
};
constexpr Keyword<SliceOrientation> kSliceOrientation[] = {
    {SliceOrientation::Clockwise, "clockwise"},
    {SliceOrientation::CounterClockwise, "counter-clockwise"},
};
constexpr Keyword<LegendPlacement> kLegendPlacement[] = {
    {LegendPlacement::Top, "top"},     {LegendPlacement::Left, "left"}, {LegendPlacement::Bottom, "bottom"},
    {LegendPlacement::Right, "right"}, {LegendPlacement::Free, "free"},
};
constexpr Keyword<ReferenceOrientation> kReferenceOrientation[] = {
    {ReferenceOrientation::Rotate0, "rotate0"},
    {ReferenceOrientation::Rotate90, "rotate90"},
    {ReferenceOrientation::Rotate180, "rotate180"},
    {ReferenceOrientation::Rotate270, "rotate270"},
};
constexpr Keyword<FontStyle> kFontStyle[] = {
    {FontStyle::Normal, "normal"},
    {FontStyle::Italic, "italic"},
    {FontStyle::Oblique, "oblique"},
    {FontStyle::Backslant, "backslant"},
};
constexpr Keyword<FontWeight> kFontWeight[] = {
    {FontWeight::Normal, "normal"},
    {FontWeight::Bold, "bold"},
};
constexpr Keyword<SLineCap> kSLineCap[] = {
    {SLineCap::Butt, "butt"},
    {SLineCap::Round, "round"},
    {SLineCap::Square, "square"},
};
constexpr Keyword<SLineJoin> kSLineJoin[] = {
    {SLineJoin::Miter, "miter"},
    {SLineJoin::Round, "round"},
    {SLineJoin::Bevel, "bevel"},
};
constexpr Keyword<ChartTheme> kChartTheme[] = {
    {ChartTheme::None, "none"},
    {ChartTheme::GrayFlat, "gray-flat"},
    {ChartTheme::GrayWhiteOutline, "gray-white-outline"},
    {ChartTheme::GrayGradient, "gray-gradient"},
    {ChartTheme::GrayDarkOutline, "gray-dark-outline"},
    {ChartTheme::ColoredFlat, "colored-flat"},
    {ChartTheme::ColoredWhiteOutline, "colored-white-outline"},
    {ChartTheme::ColoredGradient, "colored-gradient"},
    {ChartTheme::ColoredDarkOutline, "colored-dark-outline"},
    {ChartTheme::BlueFlat, "blue-flat"},
    {ChartTheme::BlueWhiteOutline, "blue-white-outline"},
    {ChartTheme::BlueGradient, "blue-gradient"},
    {ChartTheme::BlueDarkOutline, "blue-dark-outline"},
    {ChartTheme::RedFlat, "red-flat"},
    {ChartTheme::RedWhiteOutline, "red-white-outline"},
    {ChartTheme::RedGradient, "red-gradient"},
    {ChartTheme::RedDarkOutline, "red-dark-outline"},
    {ChartTheme::GreenFlat, "green-flat"},
    {ChartTheme::GreenWhiteOutline, "green-white-outline"},
    {ChartTheme::GreenGradient, "green-gradient"},
    {ChartTheme::GreenDarkOutline, "green-dark-outline"},
    {ChartTheme::PurpleFlat, "purple-flat"},
    {ChartTheme::PurpleWhiteOutline, "purple-white-outline"},
    {ChartTheme::PurpleGradient, "purple-gradient"},
    {ChartTheme::PurpleDarkOutline, "purple-dark-outline"},
    {ChartTheme::AquaFlat, "aqua-flat"},
    {ChartTheme::AquaWhiteOutline, "aqua-white-outline"},
    {ChartTheme::AquaGradient, "aqua-gradient"},
    {ChartTheme::AquaDarkOutline, "aqua-dark-outline"},
    {ChartTheme::OrangeFlat, "orange-flat"},
    {ChartTheme::OrangeWhiteOutline, "orange-white-outline"},
    {ChartTheme::OrangeGradient, "orange-gradient"},
    {ChartTheme::OrangeDarkOutline, "orange-dark-outline"},
};
constexpr Keyword<GradientUnits> kGradientUnits[] = {
    {GradientUnits::ObjectBoundingBox, "objectBoundingBox"},
    {GradientUnits::UserSpaceOnUse, "userSpaceOnUse"},
};
constexpr Keyword<GradientSpreadMethod> kGradientSpreadMethod[] = {
    {GradientSpreadMethod::Reflect, "reflect"},
    {GradientSpreadMethod::Repeat, "repeat"},
    {GradientSpreadMethod::Pad, "pad"},
};

}  // namespace

// The enumerations whose expectation lists their keywords.
#define VEXA_LISTED_ENUMERATIONS(X) \
    X(AxisOrientation)              \
    X(AxisIntersection)             \
    X(AxisDataType)                 \
    X(TickMarkStyle)                \
    X(TickMarkType)                 \
    X(GridlineType)                 \
    X(DisplayValPlacement)          \
    X(DisplayValOrientation)        \
    X(LabelsPosition)               \
    X(SerieGrouping)                \
    X(BarShapeType)                 \
    X(MarkerType)                   \
    X(CaptionPlacement)             \
    X(PieShapeType)                 \
    X(SliceOrientation)             \
    X(LegendPlacement)              \
    X(ReferenceOrientation)         \
    X(FontStyle)                    \
    X(FontWeight)                   \
    X(SLineCap)                     \
    X(SLineJoin)                    \
    X(GradientUnits)                \
    X(GradientSpreadMethod)

// The text form of an enumeration, from its table.
#define VEXA_KEYWORD_TRAITS(E, EXPECTATION)                                                                \
    bool ValueTraits<E>::parse(std::string_view text, E& out) { return Keywords<k##E>::parse(text, out); } \
    std::string ValueTraits<E>::print(const E& value) { return Keywords<k##E>::print(value); }             \
    std::string_view ValueTraits<E>::expectation() noexcept { return EXPECTATION; }                        \
    std::string_view ValueTraits<E>::name() noexcept { return #E; }
#define VEXA_LISTED_KEYWORD_TRAITS(E) VEXA_KEYWORD_TRAITS(E, Keywords<k##E>::list())
#define VEXA_KEYWORDS_ROW(E) {#E, Keywords<k##E>::kTexts},

VEXA_LISTED_ENUMERATIONS(VEXA_LISTED_KEYWORD_TRAITS)
VEXA_KEYWORD_TRAITS(ChartTheme,
                    "a theme (write none, or a family gray, colored, blue, red, green, purple, aqua or orange with a "
                    "variant flat, white-outline, gradient or dark-outline, such as blue-gradient)")

std::span<const std::string_view> findKeywords(std::string_view typeName) noexcept {
    struct Row {
        std::string_view name;
        std::span<const std::string_view> keywords;
    };
    static constexpr Row kRows[] = {VEXA_LISTED_ENUMERATIONS(VEXA_KEYWORDS_ROW) VEXA_KEYWORDS_ROW(ChartTheme)};
    const auto* const row = std::ranges::find(kRows, typeName, &Row::name);
    return row == std::end(kRows) ? std::span<const std::string_view>() : row->keywords;
}

}  // namespace VEXA
