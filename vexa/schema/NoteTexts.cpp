#include "vexa/schema/Notes.h"

namespace VEXA {

// What people are told about elements, attributes and values. A chapter begins with "# title", a section with "##
// name", the name of an element, of a
// base class (with its heading behind =) or of a type of values. Lines with "> " are its example, lines with
// "@a: b" tell of an attribute or of an example of a value, all others are its text. What an element says of an
// attribute goes before what its base classes say. One text in place of a table of strings: a program that does not ask
// for it pays nothing for it when it starts.
const char kNoteTexts[] = R"(
# The page

## root
The page: its size, background, font and theme, and everything on it. Charts are painted in the order of the document,
then the title, then the legend. The first chart takes its colours from the theme; those of further charts are given in
the document.
> <root xmlns="http://vexa-charts.org/2008/vx" width="480px" height="320px" fill="white">
>   <title value="Rainfall" width="100%" height="24px"/>
> </root>
@x: Moves the whole page to the right.
@y: Moves the whole page down.
@width: Width of the page; a percentage refers to 800 px.
@height: Height of the page; a percentage refers to 600 px.
@theme: Colours of the chart and the legend; `none` leaves only the colours of the document.
@viewBox: Own units for all that is on the page: x, y, width and height of what the page shows; `0 0 0 0` is none.

## title
A text in a box of its own, broken into lines that fit the width of the box; what is beyond its height is cut off.
`fill` and `stroke` paint the box.
> <title x="20px" y="12px" width="440px" font-size="16px" font-weight="bold" value="Rainfall in 2024"/>
@x: Left edge of the box.
@y: Top edge of the box.
@width: Width of the box, and so of its lines; a percentage refers to the page.
@height: Height of the box; a percentage refers to the page.
@value: The text.
@value-color: Colour of the text.
@caption-color: Plays no part here; the colour of the text is `value-color`.
@caption-offset: Plays no part here.

## legend
A box of items, each with a marker and a caption: in one row when they fit, else one below the other. A legend at an
edge of the page centres itself there and takes the room that its items need.
> <legend legend-placement="bottom" height="30px" padding="8px">
>   <legend-item label="square" caption="Rain"/>
> </legend>
@x: Left edge; counts for `legend-placement="free"`.
@y: Top edge; counts for `legend-placement="free"`.
@width: Width; for a legend at the left or the right edge, the room that its captions have.
@height: Height; for a legend at the top or the bottom edge, the room that is kept for it.
@orientation: Turns the content of the box by quarters, clockwise.
@legend-placement: The edge of the page where the legend stands; `free` leaves it at its `x` and `y`.
@padding: Space between the edge of the box and the items.

## legend-item
A line of the legend. `fill` and `stroke` paint its marker, the font and `caption-color` its caption. Without a `fill`
of its own the marker has the theme's colour for the series or slice of the same place, counted from the last.
> <legend-item label="circle" fill="#4477aa" caption="Rain"/>
@label: Shape of the marker.
@label-width: Width of the marker.
@label-spacing: Space between marker and caption, and between items in a row.
@caption: The text.
@caption-offset: Plays no part here.

# Bar, line and area charts

## plot-area
A rectangle with two axes, in which bars, lines and areas are drawn. It makes room for labels and captions by itself.
Both axes must be there.
> <plot-area x="10px" y="40px" width="460px" height="270px">
>   <category-axis><display-values placement="between-ticks"/></category-axis>
>   <value-axis><grid-lines stroke="#ddd"/><display-values/></value-axis>
>   <bar-chart><serie><data-point category="May" value="42"/></serie></bar-chart>
> </plot-area>
@labels-position: Whether the plot shrinks so that labels and captions stay inside the area, or they may stand out.
@show-captions: Whether the captions and the markers of data points are drawn.

## bar-chart
Series drawn as bars: rectangles, or boxes and cylinders in the 3-D view.
> <bar-chart grouping="stacked" bar-shape="cylinder">
>   <serie><data-point category="May" value="42"/></serie>
> </bar-chart>
@cluster-spacing: Space between the bars of a category when they stand side by side.
@bar-shape: Shape of the bars in the 3-D view.

## line-chart
Series drawn as lines through their points, or as ribbons in the 3-D view. A line goes on over a point without value.
> <line-chart marker="circle">
>   <serie stroke="#4477aa"><data-point category="2023" value="42"/> <data-point category="2024" value="45"/></serie>
> </line-chart>
@grouping: The order in which series are painted: `stacked` begins with the last one.

## area-chart
Series drawn as areas down to the category axis.
> <area-chart>
>   <serie fill-opacity="0.6"><data-point category="2023" value="42"/> <data-point category="2024" value="45"/></serie>
> </area-chart>
@grouping: The order in which series are painted: `stacked` begins with the last one.

## serie
A series: data points of one colour. `fill` paints bars and areas, `stroke` lines and outlines; without them the theme
does. A series has at most one point for a category; points without a category or with that of an earlier one are left
out.
> <serie fill="#4477aa" marker="square">
>   <data-point category="May" value="42"/>
> </serie>

## data-point
A value at a category. In a bar chart it is a bar, in line and area charts a point that the line or area goes through.
Its caption and its marker are drawn in all of them.
> <data-point category="2024-05-01" value="42.5" caption="42.5 mm" caption-placement="inside-end"/>
@value: Where the point stands along the value axis. Without one there is no bar, and lines go past.
@category: Where the point stands along the category axis.
@width: Thickness of the bar.
@caption: A text at the point.
@caption-placement: Where the caption stands: beyond the end of the bar, in its middle, inside at its end or at its base.
@marker: Shape of the marker at the point.
@marker-width: Size of the marker.

## VexaContainerObject
@grouping: How the bars of a category stand: over each other, side by side or on top of each other.

## category-axis
The axis of the categories: names, dates or numbers. It lies at the bottom unless `orientation` or `intersection` say
otherwise. `stroke` paints its line, the font and `caption-color` its caption.
> <category-axis data-type="date" unit="months" caption="Month">
>   <tick-marks/> <display-values format="MMM"/>
> </category-axis>

## value-axis
The axis of the values. It stands at the left unless `orientation` or `intersection` say otherwise. `stroke` paints its
line, the font and `caption-color` its caption.
> <value-axis unit="10" caption="mm">
>   <grid-lines stroke="#ddd"/> <display-values min="0" format="0.0"/>
> </value-axis>

## VexaAxisObject
@orientation: Whether the axis lies or stands. Bars run along the value axis, so a lying value axis gives lying bars.
@intersection: Where it crosses the other axis: at the largest value, the smallest, or at zero (at the smallest if that is above zero, or no number).
@caption: The name of the axis, beside its labels.
@unit: Step from one label, tick mark and grid line to the next: a number above 0, or a step of dates.
@data-type: What the values are; `automatic` looks at them, `number-alt` means `number`.
@min: The first value. [`display-values`](#display-values) takes it from here unless it has one of its own.
@max: The last value. [`display-values`](#display-values) takes it from here unless it has one of its own.

## tick-marks
Short lines across the axis at each of its values.
> <tick-marks tick-mark-style="cross" tick-mark-length="6px" stroke="#888"/>
@tick-mark-style: On which side of the axis they are; `none` draws none.
@tick-mark-type: Read and kept; all are drawn alike.
@tick-mark-length: Their length.

## display-values
The labels of an axis, and the range it covers. The font and `caption-color` paint the labels.
> <display-values min="0" max="100" format="#,##0.0 th:, dec:." orientation="diagonal"/>
@draw-values: Whether labels are drawn.
@replace-values: Whether `format` and the [`value`](#value) children count; else each label is the value's own text.
@adjust-values: Whether labels that would overlap are left out.
@draw-at-min: Whether labels of a category axis that crosses inside the plot stand at the edge of the plot.
@offset: Space between the axis and its labels.
@min: The first value of the axis.
@max: The last value of the axis.
@placement: Whether labels stand at the tick marks or between them; bars look best between.
@orientation: Labels lie, are turned by a right angle, or by half of one.
@format: [Pattern](#patterns-of-labels) of the labels, for numbers or dates.

## value
Another text for one label of the axis.
> <value value="0" display="sea level"/>
@value: The value of the axis whose label is replaced.
@display: The text in its place.

## grid-lines
Lines across the plot at each value of the axis.
> <grid-lines stroke="#ddd" stroke-dasharray="2 2"/>
@type: `none` draws none.

# Pies and doughnuts

## pie
A pie or a doughnut. A slice's share is its value among the sum of all; the sign of a value does not count.
> <pie x="10px" y="40px" width="300px" height="260px" pie-shape="doughnut" start-angle="-90">
>   <slice value="40.2" caption="Wind 40.2%"/> <slice value="59.8" caption="Sun 59.8%"/>
> </pie>
@labels-position: `fit` makes the pie round and small enough for its captions; `overflow` fills the area with it.
@start-angle: Where the first slice begins, in degrees from 3 o'clock in the direction of the slices.
@slice-orientation: The direction in which slices follow each other.
@pie-shape: A doughnut has a hole of half its size.
@show-connectors: Whether lines lead from the slices to captions outside.
@connectors-color: Colour of these lines.
@show-captions: Whether captions are drawn.
@caption-size: Room for captions around the pie; a percentage refers to the shorter side of the area.
@caption-wrap: Whether captions outside are broken into lines of `caption-size`.
@caption-placement: Where the captions of the slices stand.

## slice
A part of a pie. `fill` and `stroke` paint it, else the theme does.
> <slice value="40.2" fill="#4477aa" caption="Wind 40.2%" caption-placement="outside-end"/>
@value: How large it is compared with the other slices.
@caption: Its text; left out where it would lie over another one.
@caption-placement: Outside the rim, in the middle of the slice, or inside at its rim. `inside-base` is outside too, but on one line and without a connector.

# Radar charts

## spider
A radar chart: an axis for each property, all from one centre, and a closed line for each series. Series have no colours
of the theme.
> <spider x="40px" y="40px" width="300px" height="300px" web-stroke="#ddd" unit-frequency="2">
>   <spider-axis id="body" min="0" max="10" caption="Body"/>
>   <spider-serie stroke="#4477aa"><spider-data-point axis-id="body" value="7.6"/></spider-serie>
> </spider>
@unit-frequency: Distance of the rings of the web, in values; 0 leaves it to the program.
@draw-web: Whether the rings of the web are drawn.
@web-stroke: Colour of the web. To leave the web out, write `draw-web="false"`.
@web-stroke-opacity: Opacity of the web.
@web-stroke-width: Width of its lines.
@web-stroke-linecap: Ends of its lines.
@web-stroke-linejoin: Corners of its lines.
@web-stroke-miterlimit: How far a `miter` corner may reach, in widths of the line.
@web-stroke-dasharray: Dashes of its lines.
@web-stroke-dashoffset: Where in the pattern of dashes its lines begin.
@theme: Plays no part here: the theme has no colours for radar charts.

## spider-axis
An axis from the centre, the first one upwards, the others following clockwise. `stroke` paints it, the font and
`caption-color` its caption.
> <spider-axis id="body" min="0" max="10" caption="Body" stroke="#888"/>
@id: The name that data points use; no two axes of a spider should have the same.
@min: The value at the centre. All axes have one scale: the least `min`, or that of the data where an axis gives none.
@max: The value at the end. All axes have one scale: the largest `max`, or that of the data where an axis gives none.
@caption: The text at its end.

## spider-serie
A closed line through a point on each axis. An axis for which it has no data point counts as the centre.
> <spider-serie fill="#4477aa" fill-opacity="0.3" stroke="#4477aa">
>   <spider-data-point axis-id="body" value="7.6"/>
> </spider-serie>

## spider-data-point
The value of a series on one axis. It is not painted by itself, so its styling plays no part.
> <spider-data-point axis-id="body" value="7.6"/>
@value: Where the line crosses the axis.
@axis-id: The `id` of the axis.

# Gradients

## defs
Holds gradients, which are painted where a `fill` or a `stroke` refers to them.
> <defs>
>   <linear-gradient id="sky"> <stop offset="0" stop-color="white"/> <stop offset="1" stop-color="#4477aa"/>
>   </linear-gradient>
> </defs>

## linear-gradient
Colours that change along a line from (x1, y1) to (x2, y2). Its styling plays no part.
> <linear-gradient id="fade" x2="0" y2="1">
>   <stop offset="0" stop-color="white"/> <stop offset="1" stop-color="navy"/>
> </linear-gradient>
@id: The name that `url(#name)` refers to; no two gradients should have the same.
@gradientTransform: Moves, turns, scales or skews the gradient.
@x1: Where it begins: 0 is the left edge of what is painted, 1 the right one; see `gradientUnits`.
@y1: Where it begins: 0 is the top edge, 1 the bottom one.
@x2: Where it ends.
@y2: Where it ends.
@href: `#name` of another linear gradient, whose stops it takes in place of its own.
@gradientUnits: Whether coordinates are fractions of what is painted, or px of the page.
@spreadMethod: What is painted beyond its ends: the last colour, the gradient again, or again and mirrored.

## radial-gradient
Colours that change from a centre to a circle around it. Its styling plays no part.
> <radial-gradient id="ball" cx="0.3" cy="0.3" r="0.7">
>   <stop offset="0" stop-color="white"/> <stop offset="1" stop-color="navy"/>
> </radial-gradient>
@id: The name that `url(#name)` refers to; no two gradients should have the same.
@gradientTransform: Moves, turns, scales or skews the gradient.
@cx: Its centre: 0 is the left edge of what is painted, 1 the right one; see `gradientUnits`.
@cy: Its centre: 0 is the top edge, 1 the bottom one.
@fx: Read and kept; the gradient starts at its centre.
@fy: Read and kept; the gradient starts at its centre.
@r: Its radius; a percentage counts as 0.
@href: `#name` of another radial gradient, whose stops it takes in place of its own.
@gradientUnits: Whether coordinates are fractions of what is painted, or px of the page.
@spreadMethod: What is painted beyond the circle: the last colour, the gradient again, or again and mirrored.

## stop
A colour at a place of a gradient. Its styling plays no part.
> <stop offset="25%" stop-color="#4477aa" stop-opacity="0.5"/>
@stop-color: The colour.
@stop-opacity: Its opacity: 0 is clear, 1 is solid.
@offset: Its place: 0 is the start of the gradient, 1 the end.

# What elements have in common

## VexaObject = All elements
Every element may have a name.
@id: A name, for what refers to the element.

## VexaAreaObject = Area attributes
Pages, charts and legends: a rectangle with a background, and the font of all that is in it. A background is painted
only where `fill` or `stroke` is given.
@x: Left edge of the area.
@y: Top edge of the area.
@width: Width of the area; a percentage refers to the page.
@height: Height of the area; a percentage refers to the page.
@aspect-3d-view: Whether the chart is drawn with depth.
@aspect-3d-scene-depth: Depth of the walls of a plot.
@aspect-3d-chart-depth: Depth of bars, lines, areas and slices.
@aspect-3d-shading: Brightness of faces that are turned away, compared with those in front: 0 is black, 1 the same.
@labels-position: Whether a chart shrinks to make room for its labels and captions.
@theme: Plays no part here: the theme of the [`root`](#root) counts.
@caption-color: Colour of labels and captions.
@font-family: Names of fonts in order of preference, separated by commas.
@font-size: Size of the font; a percentage refers to the size of the page (the root of half of width² + height²).
@font-weight: Weight of the font.
@font-style: Slant of the font.
@fill: Background.
@fill-opacity: Opacity of the background: 0 is clear, 1 is solid.
@stroke: Outline of the background.
@stroke-opacity: Opacity of the outline.
@stroke-width: Width of the outline.
@stroke-linecap: Ends of its lines.
@stroke-linejoin: Corners of its lines.
@stroke-miterlimit: How far a `miter` corner may reach, in widths of the line.
@stroke-dasharray: Dashes of the outline.
@stroke-dashoffset: Where in the pattern of dashes the outline begins.
@opacity: Opacity of background and outline where `fill-opacity` or `stroke-opacity` is not given.

## VexaElementObject = Styling attributes
Fill, lines and texts of what is painted in an area. All are inherited, so that a `stroke` on an axis serves its tick
marks and grid lines too. An area keeps its own `fill` and `stroke` to itself.
@fill: What the shape is filled with.
@fill-opacity: Opacity of the fill: 0 is clear, 1 is solid.
@stroke: What its lines are drawn with.
@stroke-opacity: Opacity of the lines.
@stroke-width: Width of the lines.
@stroke-linecap: Ends of the lines.
@stroke-linejoin: Corners of the lines.
@stroke-miterlimit: How far a `miter` corner may reach, in widths of the line.
@stroke-dasharray: Dashes of the lines.
@stroke-dashoffset: Where in the pattern of dashes the lines begin.
@opacity: Opacity of fill and lines where `fill-opacity` or `stroke-opacity` is not given.
@font-family: Names of fonts in order of preference, separated by commas.
@font-size: Size of the font; a percentage refers to the size of the page (the root of half of width² + height²).
@font-weight: Weight of the font.
@font-style: Slant of the font.
@caption-color: Colour of its text.
@caption-offset: Space between its text and what the text belongs to.

# Values

## Text
Any text. Line breaks and tabs count as spaces.

## Boolean
`true` or `false`.

## Number
A decimal number, with an exponent if need be.
@12: twelve
@-0.5: minus a half
@.5: a half
@1e3: a thousand

## Number or percentage
A number, or a hundred times as many percent.
@0.5: a half
@50%: a half

## Length
A number and, right behind it, its unit: `px`, `pt`, `pc`, `mm`, `cm` or `in`. Without a unit it is in px; an inch is
96 px.
@12px: twelve px
@12: the same
@0.5in: 48 px
@10mm: 37.8 px

## Length or percentage
A length, or a percentage of what the attribute says.
@12px: twelve px
@62.5%: five eighths

## Colour
As CSS writes it: `#rgb`, `#rrggbb`, `rgb(…)` or one of the
[148 names](https://www.w3.org/TR/css-color-4/#named-colors).
@#47a: the same as #4477aa
@#4477aa: red, green and blue in two hexadecimal digits each
@rgb(68, 119, 170): red, green and blue from 0 to 255
@rgb(27%, 47%, 67%): the same in percent
@steelblue: a name, in upper or lower case

## Paint
What a shape is filled or a line is drawn with: a [colour](#colour), `none`, or `url(#name)` for the
[gradient](#gradients) with that `id`.
@none: nothing is painted; what the theme has does not count either
@#4477aa: a colour
@url(#sky): the gradient whose id is "sky"

## Number, date or text
What stands along an axis. A text that reads as a number is one, and so is a date in the form of ISO 8601; all else is
text. An empty text is no value.
@42.5: a number
@2024-05-01: a date
@2024-05-01T14:30: a date and a time, of which an axis counts the date alone
@May: a text

## Step of an axis
A number above 0, or one of `automatic`, `days`, `months`, `years`.
@10: steps of ten, as in 0, 10, 20
@months: the first of each month

## Dash pattern
Lengths of dashes and gaps in turn, with spaces or commas between them, or `none`.
@5 3: dashes of 5 px, gaps of 3 px
@4: dashes and gaps of 4 px
@1mm, 2mm: in another unit
@none: a solid line

## Transform list
Functions as in SVG, of which the last one applies first: `matrix`, `translate`, `scale`, `rotate`, `skewX`, `skewY`.
@rotate(45): by 45 degrees, clockwise
@rotate(45 0.5 0.5): the same around a point
@translate(10 20) scale(2): twice the size, then moved by 10 and 20
@matrix(1 0 0 1 10 20): the six numbers of a matrix

## View box
Four numbers: x, y, width and height.
@0 0 400 300: 400 units wide and 300 high
@-50 -50 100 100: with the origin in the middle

## Theme
`none`, or a family and a variant: `gray`, `colored`, `blue`, `red`, `green`, `purple`, `aqua`, `orange` with `flat`,
`white-outline`, `gradient`, `dark-outline`.
@colored-flat: a different colour for each series
@blue-gradient: shades of blue, each with a gradient
@none: no theme

## Patterns of labels
The `format` of [`display-values`](#display-values) is a text. For numbers it is a pattern of digits, `#,##0.00`, and
behind it, if need be, `th:` with the separator of thousands, `dec:` with the decimal one and `sign:` with the minus
sign, in this order. For dates it is made of letters: `y` year, `M` month, `d` day, `E` day of the week, `H` or `h`
hour, `m` minute, `s` second, `a` AM or PM, `w` week, `O` day with its ordinal; other text stands between quotes.
@0.0: 42.5
@#,##0.00 th:. dec:,: 1.234,50
@d MMM yyyy: 5 Mar 2024
@MMMM: March
@'week' w: week 10
)";

}  // namespace VEXA
