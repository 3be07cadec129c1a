#include "bench/CartesianDocuments.h"

namespace VEXA::Bench {

namespace {

const std::string kAxes =
    "<category-axis stroke=\"#555\"><display-values placement=\"between-ticks\"/></category-axis>\n"
    "<value-axis><display-values/><grid-lines stroke=\"#ddd\"/></value-axis>\n";

/// Values between 50 and 90 that never repeat in a regular way.
std::string value(int serie, int point) { return std::to_string(50 + (point * 7919 + serie * 104'729) % 1000 / 25); }

std::string serieOf(int serie, int points, bool areTexts) {
    std::string text = "<serie>\n";
    for (int i = 0; i < points; ++i) {
        text += "<data-point category=\"" + (areTexts ? "item " : std::string()) + std::to_string(i) + "\" value=\"" +
                value(serie, i) + "\"/>\n";
    }
    return text + "</serie>\n";
}

}  // namespace

std::string cartesianChart(CartesianKind kind, int points) {
    const bool areBars = kind == CartesianKind::ClusteredBars || kind == CartesianKind::StackedBars;
    const std::string grouping = kind == CartesianKind::StackedBars ? "stacked" : "clustered";
    const int series = areBars ? 10 : 1;
    std::string text = "<root xmlns=\"http://vexa-charts.org/2008/vx\" width=\"1200\" height=\"600\"><plot-area>\n" +
                       (areBars ? "<bar-chart grouping=\"" + grouping + "\">\n" : std::string("<line-chart>\n"));
    for (int s = 0; s < series; ++s) text += serieOf(s, points / series, kind == CartesianKind::TextLine);
    return text + (areBars ? "</bar-chart>\n" : "</line-chart>\n") + kAxes + "</plot-area></root>\n";
}

std::string smallBarChart() {
    static constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                              "July",    "August",   "September", "October", "November", "December"};
    std::string text =
        "<root xmlns=\"http://vexa-charts.org/2008/vx\" fill=\"white\"><title value=\"Loans by month\"/>"
        "<plot-area x=\"32\" y=\"64\" width=\"736\" height=\"440\"><bar-chart cluster-spacing=\"1\">\n";
    for (int s = 0; s < 3; ++s) {
        text += "<serie>\n";
        for (int m = 0; m < 12; ++m) {
            text += std::string("<data-point width=\"14\" category=\"") + kMonths[m] + "\" value=\"" + value(s, m) +
                    "\"/>\n";
        }
        text += "</serie>\n";
    }
    return text + "</bar-chart>\n" + kAxes +
           "</plot-area><legend legend-placement=\"bottom\" height=\"40\"><legend-item label=\"square\" "
           "caption=\"2022\"/><legend-item label=\"square\" caption=\"2023\"/><legend-item label=\"square\" "
           "caption=\"2024\"/></legend></root>\n";
}

}  // namespace VEXA::Bench
