#pragma once

#include <cmath>
#include <sstream>

#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/VexaPlotArea.h"

/// Small plots, and what they draw in coordinates of the page.
namespace VEXA::Testing {

/// Data points from "A:10 B:20": categories and values.
inline std::string points(const std::string& data) {
    std::string result;
    std::istringstream in(data);
    for (std::string pair; in >> pair;) {
        const std::size_t split = pair.find('=');
        result += "<data-point category='" + pair.substr(0, split) + "' value='" + pair.substr(split + 1) + "'/>";
    }
    return result;
}

inline std::string lineChart(const std::string& data) {
    return "<line-chart><serie>" + points(data) + "</serie></line-chart>";
}

/// A document without theme of 400 px by 300 px with one plot area. Texts of 10 px: 6 px for a character, 10 px high,
/// 2 px of that below the baseline (WithFonts).
inline std::string plotWith(const std::string& attributes, const std::string& content) {
    return rootWith("width='400' height='300' theme='none' font-size='10'",
                    "<plot-area " + attributes + ">" + content + "</plot-area>");
}

/// A plot of 200 px by 100 px at (0, 0) that the layout leaves alone.
inline std::string fixedPlot(const std::string& attributes, const std::string& content) {
    return plotWith("width='200' height='100' labels-position='overflow' " + attributes, content);
}

/// Axes of the fixed plot on which a category takes 10 px and a value 5 px; lying 5 px and 10 px.
inline const std::string kUpright = "<category-axis min='0' max='20'/><value-axis min='-10' max='10'/>";
inline const std::string kLying =
    "<category-axis min='0' max='20'/><value-axis min='-10' max='10' orientation='horizontal'/>";

inline Matrix transformOf(const DrawCall& call) {
    std::istringstream in(call.transform);
    float m[6] = {};
    for (float& element : m) in >> element;
    return {m[0], m[1], m[2], m[3], m[4], m[5]};
}

/// The points of a line or a path, or the origin of another call, on the page.
inline std::string onPage(const DrawCall& call) {
    std::string numbers = call.points.empty() ? call.origin : call.points;
    for (char& c : numbers) c = c == ',' ? ' ' : c;
    std::istringstream in(numbers);
    std::vector<PointF> result;
    for (PointF point; in >> point.x >> point.y;) result.push_back(transformOf(call).apply(point));
    return shown(result);
}

/// "text x,y" of each text, with " turned DEGREES" behind when it is turned.
inline std::string textsOf(const std::string& xml) {
    std::string result;
    for (const DrawCall& call : drawingCalls(xml, "text")) {
        const auto m = transformOf(call).getElements();
        const double turn = std::round(std::atan2(m[1], m[0]) * 180 / 3.14159265);
        result += call.text + ' ' + onPage(call) + (turn == 0 ? "" : " turned " + shown(turn)) + "; ";
    }
    return result;
}

/// The lines of that colour, "x,y x,y; ", in the order of drawing.
inline std::string linesOf(const std::string& xml, const std::string& stroke) {
    std::string result;
    for (const DrawCall& call : drawingCalls(xml, "line")) {
        if (call.stroke == stroke) result += onPage(call) + "; ";
    }
    return result;
}

/// The plot area of a document.
inline VexaPlotArea& plotOf(VexaRoot& root) { return static_cast<VexaPlotArea&>(*root.getBodies()[0]); }

}  // namespace VEXA::Testing
