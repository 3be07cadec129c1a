#include "vexa/support/core/StringTable.h"

#include <algorithm>
#include <iterator>

#include "vexa/support/core/StringFormatStream.h"

namespace VEXA {

namespace {

struct Message {
    int number;
    std::string_view text;
};

// In ascending order of numbers. A message starts in lower case, carries no place of its own (who shows it puts file,
// line and column in front) and says what would help.
constexpr Message kMessages[] = {
    // Files: {0} is the name, {1} the reason that the operating system gives.
    {1001, R"("{0}" cannot be opened for reading: {1}; check the name and the permissions)"},
    {1002, R"("{0}" cannot be opened for writing: {1}; check the directory and the permissions)"},
    {1003, R"(reading "{0}" failed: {1}; check that it is a readable file)"},
    {1004, R"(writing "{0}" failed: {1}; make room, or write to another place)"},
    {1005, R"("{0}" cannot be put in place: {1}; check the directory and the permissions)"},
    {1006, "this stream reads memory of its caller and cannot be written to; write to a memory stream or a file"},
    {1007, R"(the library "{0}" cannot be loaded: {1}; install it (on Debian the package {2}))"},
    {1008, R"(the library "{0}" has no function "{1}"; install a newer one (on Debian the package {2}))"},

    // States that should not occur.
    {2001, "{0}"},
    {2002, "a mandatory object is missing: the document is empty, or an element lacks a child that it needs; add it"},
    {2029, "the abstract class {0} was instantiated; make an object of one of its descendants"},

    // The XML of a document.
    {3000, "malformed XML: {0}"},
    {3001,
     "document type declarations are refused, because their entities can read files and grow without end; remove "
     "<!DOCTYPE and write each entity's text in its place"},
    {3002, R"(the top element "{0}" is unknown; a chart document starts with <root xmlns="{1}">)"},
    {3003, R"({0}: attribute "{1}": "{2}" is not {3})"},
    {3004, R"(unknown element "{0}" in "{1}" is skipped; remove it or correct its name)"},
    {3005, R"(unknown element "{0}" in "{1}" is skipped; did you mean {2}?)"},
    {3006, R"(unknown attribute "{0}" of "{1}" is ignored; remove it or correct its name)"},
    {3007, R"(unknown attribute "{0}" of "{1}" is ignored; did you mean {2}?)"},
    {3008, R"(a second "{0}" in "{1}" is ignored, the first one is kept; remove one of them)"},
    {3009, R"(text in "{0}" is ignored; write texts into attributes)"},
    {3010, "elements are nested deeper than {0}; take some levels out"},
    {3011, R"("{0}" has more than {1} attributes; remove some)"},
    {3012, "the document has more than {0} elements; split it"},
    {3013, "a tag is longer than {0} bytes; shorten its attributes"},
    {3014, "more than {0} warnings, further ones of this document are left out; correct these first"},
    {3015, R"(the encoding "{0}" is unknown; save the document as UTF-8, UTF-16, ISO-8859-1 or US-ASCII)"},
    {3016, R"(element "{0}" is not in the chart namespace; add xmlns="{1}" to the top element)"},
    {3017, "malformed XML: {0}; <{1}> of line {2} is open here"},
    {3018, R"(element "{0}" may not stand in "{1}" and is skipped; write it inside {2})"},
    {3019, R"(a second "{0}" of "{1}" is ignored, the first one is kept; write it once, without a prefix)"},
    {3020, R"(element "{0}" may not stand in "{1}" and is skipped; no element takes it, remove it)"},
    {3021, R"(attribute "{0}" does not belong to "{1}" and is ignored; write it on {2})"},
    {3022, R"(element "{0}" may not stand in "{1}" and is skipped; did you mean {2}?)"},
    {3023, R"(text in "{0}" is ignored; write it into {2})"},

    // Charts.
    {34000, R"(a spider data point has no axis; give it an "axis-id" that is the "id" of one of the axes)"},
    {34001,
     R"(reference "{0}" is not found among the definitions; correct it or define it, rendering goes on without it)"},
    {34002, R"("{0}" is not a gradient; refer to a linear-gradient or a radial-gradient)"},
    {34003, R"(href "{0}" leads to a gradient of another kind; linear gradients take stops from linear ones only)"},
    {34004, "a gradient has more than {0} stops, the further ones are left out; take fewer"},
    {34005, "a dash pattern has more than {0} entries, the further ones are left out; write a shorter one"},
    {34011, R"(the view box "{0}" has no extent; write min-x, min-y and a width and a height above 0)"},
    {34012, R"(a web of {0} rings is too fine, a part of them is drawn; give the spider a larger "unit-frequency")"},
    {34013, R"(the web has no stroke; to leave the web out, write draw-web="false" in place of web-stroke="none")"},
    {34014, "a caption breaks into more than {0} lines, the rest is left out; give it more width or a shorter text"},
    {34015,
     "{0} rings and {1} series of the spider are left out, a picture has at most {2} corners of them; take fewer axes "
     "or series, or a larger \"unit-frequency\""},
    {34016, R"(no axis of the spider has the id "{0}", the data point is left out; correct "axis-id" or add the axis)"},
    {34017,
     R"(the page has no extent ({0} by {1} px), nothing of it shows; give the root a width and a height above 0)"},
    {34018, R"(the view box "{0}" leads beyond all coordinates, nothing of the chart shows; write smaller numbers)"},

    // Fonts.
    {34030, R"(the directory of fonts "{0}" cannot be read: {1}; check the name and the permissions)"},
    {34031,
     "no font has {0}, it is measured and drawn as a box; install a font that has it, or name its directory with "
     "--font-dir"},
    {34032, R"(the directory of fonts "{0}" holds no font; name one with TrueType or OpenType fonts, or leave it out)"},
    {34033,
     "no font has {0}, they are measured and drawn as boxes; install fonts that have them, or name their directory "
     "with --font-dir"},
    {34034, R"(the font file "{0}" is cut off: it ends before its tables do; copy it again, or take it away)"},

    {34040, "the values of the pie's slices add up to nothing, only its background is drawn; give a slice a value"},
    {34041,
     R"(a pie of {0} by {1} px cannot be drawn, only its background is; give it a larger "width" and "height" or )"
     R"(less depth)"},
    {34042,
     R"(the pie is too small for its captions ({0} by {1} px), it is drawn without them; give it a larger area, or )"
     R"(write a smaller "caption-size")"},
    {34043, R"(a "start-angle" of {0} degrees is beyond what can be drawn rightly; write one from -360 to 360)"},
    {34044,
     R"(the area of the pie has no room for {0} of its captions, they are left out; make it larger, shorten them, or )"
     R"(write labels-position="overflow")"},
    {34045,
     R"(a "caption-size" of {0} px has no room for {1} of the pie's captions, they are cut short or left out; write a )"
     R"(larger one)"},
    {34050,
     "the legend has no room for {0} of its captions, they are cut short or left out; give it more \"width\", or "
     "\"height\" where it is turned"},
    {34051,
     "the legend shows nothing of {0} of its items, they lie outside its box or the page; give it a \"width\" and a "
     "\"height\" that hold them and keep within the page"},

    {34060,
     "the number format \"{0}\" has a setting that counts as text; write them behind the pattern in the order th:, "
     "dec:, "
     "sign:, the first one always, as in \"0.0 th: dec:,\""},
    {34061,
     "a number format has a pattern of more than {0} characters, or a setting of more than {1}, the further ones are "
     "left out; write shorter ones"},
    {34062, "a date format has more than {0} characters, the further ones are left out; write a shorter one"},
    {34063,
     R"(the letter "{0}" means nothing in the date format "{1}" and is left out; put text between quotes: 'Q'M)"},
    {34064, R"(the date format "{0}" shows nothing of a date, all labels are the same; write one such as d MMM yyyy)"},
    {34065, R"(the plot area has no {0}, nothing of it can be drawn; add one)"},
    {34066,
     R"(the unit "{0}" of the "{1}" is not above 0; write a number above 0, or automatic, days, months or years)"},
    {34067, R"(the unit "{0}" of the "{1}" asks for {2} values, more than {3}; write a larger one)"},
    {34068,
     R"(the "{0}" would have {1} values, more than {2}, the first and the last one are drawn; give it a larger "unit")"},
    {34069,
     "labels and captions leave no room for the plot ({0} by {1} px), nothing of it is drawn; make the plot area "
     "larger "
     "or the texts smaller"},
    {34070,
     R"(data points without a category are left out, {0} of this series, this one first; give each a "category")"},
    {34071,
     "data points with the category of an earlier one are left out, {0} of this series, this one first; take them out "
     "or "
     "correct the category"},
    {34072, R"(data points whose {1} is no {2} are left out, {0} of this series, this one first; correct them, or the )"
            R"("data-type" of the "{3}")"},
    {34073, R"(the "{0}" of the "{1}" does not count, "{2}" is no {3}; write a {3})"},
    {34074, R"(the "{0}" would go from {1} back to {2}; correct its "min" and "max")"},
    {34075,
     R"(the picture has no room for the {1} values of the "{0}", the first and the last one are drawn; give it a larger )"
     R"("unit", or take fewer charts)"},
    {34076,
     R"(the picture has no room for the further labels of the "{0}", they are left out; write a shorter "format")"},

    // What a name, a value or a reference was meant to be.
    {34100, R"({0}: attribute "{1}": "{2}" is not {3}; did you mean "{4}"?)"},
    {34101, R"(element "{0}" is in the namespace "{2}" and not in that of charts; write xmlns="{1}")"},
    {34102, R"(reference "{0}" is not found among the definitions, rendering goes on without it; did you mean "{1}"?)"},
    {34103,
     R"(a second definition "{0}" is ignored, references find the one of line {1}; give one of them another id)"},
    {34104, R"(no axis of the spider has the id "{0}", the data point is left out; did you mean "{1}"?)"},
    {34105, R"(the title is cut, {0} of its lines show no more than in part; give it more "height" or "width", or a )"
            R"(smaller "font-size")"},
    {34106,
     R"(data points whose {1} is no {2} are left out, {0} of this series, this one first; write "{5}" for "{4}")"},

    // What only a check tells: warnings.
    {34110, R"(the root holds nothing to draw; add a "plot-area", a "pie" or a "spider")"},
    {34111, R"(the plot area has no series; add a "serie" with data points to a bar-chart, line-chart or area-chart)"},
    {34112, R"(the series has no data points, nothing of it is drawn; add a "{0}" for each value)"},
    {34113, R"(the spider has no {0}, only its background is drawn; add one)"},
    {34114, R"("{0}" of the "{1}" is {2}, which is below 0; write a length of 0 or more)"},
    {34115, R"(the document is empty; a chart document starts with <root xmlns="{0}">)"},
    {34116, R"(the top element is "{0}"; put it into a <root xmlns="{1}">)"},
    {34117, "{0} more problems of this document are left out; correct these first"},
    {34118, R"(a second axis has the id "{0}", data points show on both; give one of them another id)"},
    {34119, R"(the "{0}" has no series, nothing of it is drawn; add a "serie", or leave it out)"},

    // What only a check tells: hints.
    {34120, R"(the categories are years, but count as numbers on an axis from {0} to {1}; write data-type="text" for )"
            R"(the "category-axis", or give its "display-values" a "min")"},
    {34121, R"(the legend is docked at the {0} and as {1} as the page, it covers the chart; give it a smaller "{2}")"},
    {34122,
     R"(the legend is {0} by {1} px, which is more than the page of {2} by {3} px; give it less "width" or "height")"},
    {34123, R"(bars at the ends of the "category-axis" are cut in half; give it <display-values )"
            R"(placement="between-ticks"/>)"},
    {34124,
     R"(the root is {0} by {1} in units of its view box of {2} by {3}, so {4}; leave "width" and "height" out, or )"
     R"(write a view box of that size)"},
    {34125, R"(the grid lines have no stroke, none shows; write a "stroke", or leave <grid-lines> out)"},
    {34126, R"(the web has no width, nothing of it shows; write a "web-stroke-width" above 0, or draw-web="false")"},
    {34127, R"(nothing of this {0} shows, it has neither "fill" nor "stroke"; write one of them)"},
    {34128, R"("{0}" counts as a text and not as a date; write "{1}", or data-type="text" for the axis of a name)"},
    {34129, R"("{0}" counts as a text and not as a number, so the "value-axis" shows texts; write "{1}")"},
    {34130, R"(the line of this series has no stroke, nothing of it shows; write a "stroke")"},
    {34131, R"({0} captions of the pie would lie over others and are left out; make it larger, or write a smaller )"
            R"("font-size")"},
    {34132,
     R"(nothing shows of what is painted with this gradient, "{0}" has no stops of its own; give it a "stop", or )"
     R"(write the "href" of a gradient that has some)"},
    {34133,
     R"(data points outside the "{1}", which goes from {2} to {3}, do not show or are cut, {0} in all, this one first; )"
     R"(leave "min" and "max" out, or make room for them)"},
    {34134,
     R"(the series of this "{0}" are painted over each other, grouping="stacked" puts bars alone on each other; give )"
     R"(each series the sums, or take a bar-chart)"},
    {34135, R"(the slice of {0} is drawn like one of {1}; leave it out, or take bars, which can go below zero)"},
    {34136, R"(the "{0}" {2} of the "{1}" counts as {3}; write a number from 0 to 1, or a percentage)"},
    {34137, R"(the legend has no items, only its background is drawn; add a "legend-item" for each series or slice)"},
    {34138, R"(the id "{0}" is that of the "{1}" in line {2}, too; give one of them another id)"},
    {34139,
     R"(the bars are flat, cylinders stand in the 3-D view alone; write aspect-3d-view="true" for the plot area)"},
    {34140,
     R"(points of one day stand at one place, a date axis does not count the time of day; write hours as numbers, )"
     R"(or data-type="text" for the "category-axis")"},

    // Pictures of pixels and PDF.
    {35000, R"(a page of {0} by {1} px cannot be drawn; give the chart a width and a height above 0)"},
    {35001, R"(a picture cannot be drawn at a scale of {0}; take one above 0)"},
    {35002,
     "a picture of {0} by {1} pixels is too large, it has at most {2} pixels a side and 1 GiB of memory; take a "
     "smaller scale or a smaller chart, or write an SVG"},
    {35003, R"(the drawing library cairo failed: {0})"},
    {35004, R"(the font "{0}" was measured but cannot be drawn with; take another font)"},
    {35005, "a page of {0} by {1} px is too large for a PDF, which has at most {2} px a side; make the chart smaller"},
    {35006, "the library libpng failed: {0}"},
    {35007,
     "the page has more shapes and texts than the PDF of a page can be made of in 1 GiB of memory; draw fewer, or "
     "write "
     "an SVG or a PNG"},
    {35008,
     "the shapes of a picture of {0} by {1} pixels lie over each other so often that painting it would take minutes; "
     "take a smaller scale or a smaller chart, or write an SVG"},

    // The program.
    {35100, "there is not enough memory"},
    {35101, "no picture is written, because there are warnings and --strict is given; correct them, or leave it out"},
};

static_assert(std::is_sorted(std::begin(kMessages), std::end(kMessages),
                             [](const Message& a, const Message& b) { return a.number < b.number; }));

}  // namespace

std::string_view findMessage(int number) noexcept {
    const auto* const found = std::lower_bound(std::begin(kMessages), std::end(kMessages), number,
                                               [](const Message& m, int wanted) { return m.number < wanted; });
    return found == std::end(kMessages) || found->number != number ? std::string_view() : found->text;
}

String messageText(int number, const VariantArray& arguments) {
    const std::string_view text = findMessage(number);
    if (!text.empty()) return StringFormatStream::format(String(text), arguments);
    return StringFormatStream::format("message number {0}", {static_cast<std::int64_t>(number)});
}

}  // namespace VEXA
