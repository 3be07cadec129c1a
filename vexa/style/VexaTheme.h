#pragma once

#include "vexa/support/core/Vector.h"
#include "vexa/support/drawing/Stroke.h"
#include "vexa/support/values/Enumerations.h"

namespace VEXA {

/// The palette of one render: default fills and strokes for where the document sets none. Every getter makes new
/// brushes and strokes, which the caller may change.
///
/// An index is a position in the palette, from 0; one outside gives the family's base colour, and no colour at all in
/// the coloured family, which has none.
class VexaTheme : public Object {
public:
    /// With an empty palette.
    explicit VexaTheme(ChartTheme theme) noexcept : theme_(theme) {}

    /// Builds the palette anew for `count` colours; 0 or less empties it.
    void intialize(int count);

    SmartPtr<Brush> getSerieFill(int index);
    /// The outline of series, slices and legend items; empty for none.
    SmartPtr<Stroke> getSerieStroke(int index);
    /// The line of a series that is drawn as a line.
    SmartPtr<Stroke> getLineChartStroke(int index);
    /// The background of the plot area; empty for none.
    SmartPtr<Brush> getPlotFill();
    SmartPtr<Stroke> getAxisStroke();

    /// The colours of all themes. Numbers are families; the second has no colour of its own.
    static const SmartPtr<Color>& theme1BasicColor;
    static const SmartPtr<Color>& theme3BasicColor;
    static const SmartPtr<Color>& theme4BasicColor;
    static const SmartPtr<Color>& theme5BasicColor;
    static const SmartPtr<Color>& theme6BasicColor;
    static const SmartPtr<Color>& theme7BasicColor;
    static const SmartPtr<Color>& theme8BasicColor;
    static const SmartPtr<Color>& theme1PlotColor;
    static const SmartPtr<Color>& theme3PlotColor;
    static const SmartPtr<Color>& theme4PlotColor;
    static const SmartPtr<Color>& theme5PlotColor;
    static const SmartPtr<Color>& theme6PlotColor;
    static const SmartPtr<Color>& theme7PlotColor;
    static const SmartPtr<Color>& theme8PlotColor;
    static const SmartPtr<Color>& theme1StrokeColor;
    static const SmartPtr<Color>& theme3StrokeColor;
    static const SmartPtr<Color>& theme4StrokeColor;
    static const SmartPtr<Color>& theme5StrokeColor;
    static const SmartPtr<Color>& theme6StrokeColor;
    static const SmartPtr<Color>& theme7StrokeColor;
    static const SmartPtr<Color>& theme8StrokeColor;
    static const SmartPtr<Color>& themeWhiteStrokeColor;
    static const SmartPtr<Color>& axisStrokeColor;

protected:
    /// Whether the theme is of the coloured family.
    bool isColoredStyle();
    /// The family's base colour; empty for the coloured family and for what is no theme.
    SmartPtr<Color> getBaseColor();
    /// The coloured family's colours 1 to 6: blue, red, green, purple, aqua, orange; empty for another number.
    SmartPtr<Color> getColoredStyleBaseColor(int k);
    /// The dark colour that goes with it; orange's one for another number.
    SmartPtr<Color> getColoredStyleStrokeColor(int k);

private:
    void makeSinglePalette();
    void makeColoredPalette();
    void addColoredCycle(int colors, float tint);
    SmartPtr<Color> paletteColor(int index);

    ChartTheme theme_;
    std::int32_t count_ = 1;  // after building, the number of cycles in the coloured family
    Vector<SmartPtr<Color>> palette_;
    Vector<SmartPtr<Color>> strokePalette_;  // of the coloured family
};

}  // namespace VEXA
