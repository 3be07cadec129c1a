#include "vexa/engine/ChartDescription.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "vexa/cartesian/VexaArea.h"
#include "vexa/cartesian/VexaBar.h"
#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/pie/VexaPie.h"
#include "vexa/spider/VexaSpider.h"

namespace VEXA {

namespace {

// What a listener bears; longer lists end with an ellipsis.
constexpr std::size_t kMaxNames = 12;
constexpr std::size_t kMaxNameCharacters = 40;
constexpr std::size_t kMaxBodies = 4;

std::string counted(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

/// ": Speed, Power, …" of the captions that are not blank; empty without any.
template <class T>
std::string listOfCaptions(const XmlObjectList<T>& objects) {
    std::string list;
    std::size_t count = 0;
    for (const auto& object : objects) {
        const String name = object->getCaption().trim();
        if (name.isEmpty()) continue;
        list += list.empty() ? ": " : ", ";
        if (count++ == kMaxNames) return list + "…";
        name.subString(0, kMaxNameCharacters).appendUtf8To(list);
        if (name.length() > kMaxNameCharacters) list += "…";
    }
    return list;
}

std::string describe(const VexaSpider& spider) {
    return "Radar chart of " + counted(spider.getSeries().size(), "series", "series") + " on " +
           counted(spider.getAxes().size(), "axis", "axes") + listOfCaptions(spider.getAxes());
}

std::string describe(const VexaPie& pie) {
    return (pie.isDoughnut() ? "Doughnut chart of " : "Pie chart of ") +
           counted(pie.getSlices().size(), "slice", "slices") + listOfCaptions(pie.getSlices());
}

const char* shapeOf(const VexaContainerObject& chart) {
    if (chart.isA(VexaBar::typeID())) return "bars";
    return chart.isA(VexaArea::typeID()) ? "areas" : "lines";
}

std::string describe(VexaPlotArea& plot) {
    Vector<std::string_view> shapes;
    for (const auto& chart : plot.getCharts()) {
        if (std::find(shapes.begin(), shapes.end(), shapeOf(*chart)) == shapes.end()) shapes.push_back(shapeOf(*chart));
    }
    std::string text = "Chart of " + counted(static_cast<std::size_t>(plot.getSerieCount()), "series", "series");
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        text += i == 0 ? " as " : i + 1 == shapes.size() ? " and " : ", ";
        text += shapes[i];
    }
    return text;
}

std::string describe(XmlObject& body) {
    if (body.isA(VexaSpider::typeID())) return describe(static_cast<VexaSpider&>(body));
    if (body.isA(VexaPie::typeID())) return describe(static_cast<VexaPie&>(body));
    if (body.isA(VexaPlotArea::typeID())) return describe(static_cast<VexaPlotArea&>(body));
    return {};
}

}  // namespace

DocumentInfo describeChart(const VexaRoot& root) {
    std::string text;
    std::size_t count = 0;
    for (const auto& body : root.getBodies()) {
        if (count++ == kMaxBodies) break;
        const std::string sentence = describe(*body);
        if (sentence.empty()) continue;
        if (!text.empty()) text += ' ';
        text += sentence + '.';
    }
    return {root.getTitle() ? root.getTitle()->getValue() : String(), String(text), String()};
}

}  // namespace VEXA
