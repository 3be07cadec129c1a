#include "bench/linearity/GrowingDocuments.h"

#include <concepts>

#include "bench/CartesianDocuments.h"
#include "bench/Documents.h"

namespace VEXA::Bench {

namespace {

std::string number(int value) { return std::to_string(value); }

/// The texts of piece(0) to piece(count - 1), one after the other.
template <std::invocable<int> Piece>
std::string repeat(int count, Piece piece) {
    std::string text;
    for (int i = 0; i < count; ++i) text += piece(i);
    return text;
}
std::string repeat(int count, const std::string& piece) {
    std::string text;
    for (int i = 0; i < count; ++i) text += piece;
    return text;
}

std::string root(const std::string& content, const std::string& attributes = "") {
    return "<root xmlns=\"http://vexa-charts.org/2008/vx\" " + attributes + ">" + content + "</root>";
}

/// A plot with labels on both axes, of charts like `<line-chart>`.
std::string plot(const std::string& charts, const std::string& labels = "<display-values/>") {
    return root("<plot-area>" + charts + "<category-axis>" + labels +
                "</category-axis><value-axis><display-values/></value-axis></plot-area>");
}

std::string point(const std::string& category, int value) {
    return "<data-point category=\"" + category + "\" value=\"" + number(value % 97) + "\"/>";
}

std::string serie(int points, int salt = 0) {
    return "<serie>" + repeat(points, [&](int i) { return point("item " + number(i), i * 37 + salt * 11); }) +
           "</serie>";
}

std::string line(const std::string& series) { return "<line-chart>" + series + "</line-chart>"; }
std::string bars(const std::string& grouping, const std::string& series) {
    return "<bar-chart grouping=\"" + grouping + "\">" + series + "</bar-chart>";
}
std::string series(int count, int points) {
    return repeat(count, [&](int i) { return serie(points, i); });
}

std::string words(int count) {
    return repeat(count, [](int i) { return "word" + number(i % 10) + ' '; });
}

std::string fallingPoints(int size) {
    return plot(line("<serie>" + repeat(size, [&](int i) { return point(number(size - i), i * 37); }) + "</serie>"));
}
std::string equalPoints(int size) { return plot(line("<serie>" + repeat(size, point("same", 5)) + "</serie>")); }

std::string captionedPoints(int size) {
    return plot(line("<serie>" +
                     repeat(size,
                            [](int i) {
                                return "<data-point category=\"" + number(i) + "\" value=\"" + number(i * 37 % 97) +
                                       "\" caption=\"p" + number(i) + "\"/>";
                            }) +
                     "</serie>"));
}

std::string spider(const std::string& axes, const std::string& series) {
    return root("<spider>" + axes + series + "</spider>");
}
std::string spiderAxes(int count) {
    return repeat(count, [](int i) { return "<spider-axis id=\"a" + number(i) + "\" min=\"0\" max=\"100\"/>"; });
}
std::string spiderSeries(int count, int points, int axes) {
    return repeat(count, "<spider-serie>" + repeat(points, [&](int i) {
                             return "<spider-data-point axis-id=\"a" + number(i % axes) + "\" value=\"" +
                                    number(i * 37 % 97) + "\"/>";
                         }) + "</spider-serie>");
}

std::string legend(int size) {
    return root(
        "<legend width=\"100%\" height=\"100%\">" +
        repeat(size, [](int i) { return "<legend-item label=\"square\" caption=\"Item " + number(i) + "\"/>"; }) +
        "</legend>");
}

std::string replacedValues(int size) {
    const std::string values = repeat(
        size, [](int i) { return "<value value=\"item " + number(i) + "\" display=\"label " + number(i) + "\"/>"; });
    return plot(line(serie(size)), "<display-values>" + values + "</display-values>");
}

std::string gradient(int i, const std::string& attributes = "") {
    return "<linear-gradient id=\"g" + number(i) + "\" " + attributes + "><stop offset=\"0\" stop-color=\"#00" +
           number(1000 + i % 9000) + "\"/><stop offset=\"1\" stop-color=\"red\"/></linear-gradient>";
}
std::string slicesOfGradients(int count) {
    return "<pie show-captions=\"false\">" +
           repeat(count, [](int i) { return "<slice value=\"1\" fill=\"url(#g" + number(i) + ")\"/>"; }) + "</pie>";
}
std::string gradients(int size) {
    return root(slicesOfGradients(size) + "<defs>" + repeat(size, [](int i) { return gradient(i); }) + "</defs>");
}
std::string definitions(int size) {
    return root(slicesOfGradients(size) + repeat(size, [](int i) { return "<defs>" + gradient(i) + "</defs>"; }));
}
std::string equalIds(int size) {
    return root(slicesOfGradients(1) + "<defs>" + repeat(size, [](int) { return gradient(0); }) + "</defs>");
}
/// Each takes its stops from the next one.
std::string chainedGradients(int size) {
    return root(
        slicesOfGradients(size) + "<defs>" +
        repeat(size,
               [](int i) { return "<linear-gradient id=\"g" + number(i) + "\" href=\"#g" + number(i + 1) + "\"/>"; }) +
        gradient(size) + "</defs>");
}

std::string sliceCaption(int size) { return root("<pie><slice value=\"1\" caption=\"" + words(size) + "\"/></pie>"); }
std::string pointCaption(int size) {
    return plot(line("<serie><data-point category=\"a\" value=\"1\" caption=\"" + words(size) + "\"/></serie>"));
}
std::string titleWords(int size) { return root("<title height=\"100%\" value=\"" + words(size) + "\"/>"); }
std::string longWord(int size) {
    return root("<title height=\"100%\" value=\"" + std::string(static_cast<std::size_t>(size), 'w') + "\"/>");
}
std::string mixedWord(int size) {
    return root("<title height=\"100%\" width=\"" + number(4 * size) + "\" value=\"" +
                repeat(size, [](int) { return std::string("aक\u4E2D"); }) + "\"/>");
}
std::string longWordOfASlice(int size) {
    return root("<pie><slice value=\"1\" caption=\"" + std::string(static_cast<std::size_t>(size), 'w') + "\"/></pie>");
}

std::string attributes(int size) {
    return root("<title value=\"A\" " + repeat(size, [](int i) { return "a" + number(10'000 + i) + "=\"1\" "; }) +
                "/>");
}
/// Elements that nobody knows, one in the other, two hundred times: a single tower is too small to weigh.
std::string nesting(int size) { return root(repeat(200, repeat(size, "<a>") + repeat(size, "</a>"))); }
std::string warnings(int size) { return root(repeat(size, "<titel/>")); }
std::string pieces(int size) { return root(repeat(size, "<plot-area/>")); }

}  // namespace

std::span<const Dimension> dimensions() {
    static const Dimension all[] = {
        {"points", 4000, [](int n) { return cartesianChart(CartesianKind::Line, n); }},
        {"points of texts", 4000, [](int n) { return cartesianChart(CartesianKind::TextLine, n); }},
        {"points, falling", 4000, &fallingPoints},
        {"points, all equal", 4000, &equalPoints},
        {"points, captioned", 2000, &captionedPoints},
        {"points of bars", 4000, [](int n) { return cartesianChart(CartesianKind::ClusteredBars, n); }},
        {"points of stacks", 4000, [](int n) { return cartesianChart(CartesianKind::StackedBars, n); }},
        {"series of lines", 1000, [](int n) { return plot(line(series(n, 3))); }},
        {"series of bars", 1000, [](int n) { return plot(bars("clustered", series(n, 3))); }},
        {"series of stacks", 1000, [](int n) { return plot(bars("stacked", series(n, 3))); }},
        {"categories", 1000, [](int n) { return plot(bars("clustered", series(3, n))); }},
        {"charts", 500, [](int n) { return plot(repeat(n, bars("clustered", series(1, 3)))); }},
        {"plots", 200, [](int n) { return root(repeat(n, "<plot-area>" + line(serie(3)) + "</plot-area>")); }},
        {"slices", 1000, [](int n) { return pieChart(n, true); }},
        {"slices, no captions", 2000, [](int n) { return pieChart(n, false); }},
        {"spider axes", 1000, [](int n) { return radarChart(n, 3); }},
        {"spider series", 500, [](int n) { return spider(spiderAxes(5), spiderSeries(n, 5, 5)); }},
        {"spider points", 4000, [](int n) { return spider(spiderAxes(5), spiderSeries(1, n, 5)); }},
        {"legend items", 2000, &legend},
        {"value replacements", 2000, &replacedValues},
        {"gradients", 1000, &gradients},
        {"definitions", 1000, &definitions},
        {"equal ids", 2000, &equalIds},
        {"gradients in a chain", 500, &chainedGradients},
        {"words of a slice", 2000, &sliceCaption},
        {"words of a point", 4000, &pointCaption},
        {"words of a title", 4000, &titleWords},
        {"one long word", 20'000, &longWord},
        {"word of three scripts", 2000, &mixedWord},
        {"long word of a slice", 10'000, &longWordOfASlice},
        {"attributes", 2000, &attributes},
        {"nesting", 100, &nesting},
        {"warnings", 2000, &warnings},
        {"empty plots", 2000, &pieces},
    };
    return all;
}

}  // namespace VEXA::Bench
