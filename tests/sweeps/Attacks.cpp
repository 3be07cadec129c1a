#include "tests/sweeps/Attacks.h"

namespace VEXA::Testing {
namespace {

std::string repeated(const std::string& text, int count) {
    std::string result;
    result.reserve(text.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

std::string page(const std::string& content, const std::string& attributes = "") {
    return "<root xmlns='http://vexa-charts.org/2008/vx' width='900' height='600' theme='none' " + attributes + ">" +
           content + "</root>";
}

std::string plot(const std::string& valueAxis) {
    return page("<plot-area labels-position='overflow'><category-axis/><value-axis orientation='vertical' " +
                valueAxis + "</value-axis></plot-area>");
}

/// A line whose points are in a category of their own each, with a caption.
std::string lineOf(int points, const std::string& serie) {
    std::string result = "<line-chart><serie " + serie + ">";
    for (int i = 0; i < points; ++i) {
        const std::string number = std::to_string(i);
        result += "<data-point category='" + number + "' caption='c" + number + "' value='" + number + "'/>";
    }
    return result + "</serie></line-chart>";
}

std::string gradient(int stops) {
    return "<defs><linear-gradient id='g'>" + repeated("<stop stop-color='red' offset='0.5'/>", stops) +
           "</linear-gradient></defs>";
}

const Attack kAttacks[] = {
    {"AMarkerAndACaptionForEveryPoint",
     [] {
         return page(
             gradient(256) + "<plot-area show-captions='true'><category-axis/><value-axis orientation='vertical'/>" +
             lineOf(5'000, "marker='circle' marker-width='5' stroke='url(#g)' fill='url(#g)'") + "</plot-area>");
     }},
    {"LabelsOfALongPattern",
     [] { return plot("unit='1' min='0' max='99999'><display-values format='" + std::string(100'000, '0') + "'/>"); }},
    {"LabelsOfQuotedText",
     [] {
         return plot("unit='1' min='0' max='9999'><display-values format='0&quot;" + std::string(990, 'w') +
                     "&quot;'/>");
     }},
    {"LabelsOfALongDate",
     [] {
         return page(
             "<plot-area labels-position='overflow'><category-axis data-type='date' unit='days' min='1900-01-01' "
             "max='2100-01-01'>"
             "<display-values format='" +
             std::string(100'000, 'y') +
             "'/></category-axis><value-axis orientation='vertical' min='0' max='9'/></plot-area>");
     }},
    {"ManyAxesOfManyValues",
     [] {
         return page(
             repeated("<plot-area><category-axis/><value-axis unit='1' min='0' max='90000'>"
                      "<display-values/><grid-lines/><tick-marks/></value-axis></plot-area>",
                      1000));
     }},
    {"OneGradientForManySlices",
     [] {
         return page(gradient(20'000) + "<pie>" + repeated("<slice value='1' fill='url(#g)'/>", 10'000) + "</pie>");
     }},
    {"AChainOfGradients",
     [] {
         std::string defs;
         for (int i = 0; i < 20'000; ++i)
             defs += "<linear-gradient id='g" + std::to_string(i) + "' href='#g" + std::to_string(i + 1) + "'/>";
         defs += "<linear-gradient id='g20000'><stop stop-color='red'/><stop offset='1'/></linear-gradient>";
         return page("<defs>" + defs + "</defs><pie>" + repeated("<slice value='1' fill='url(#g0)'/>", 1000) +
                     "</pie>");
     }},
    {"GradientsWithOneId",
     [] {
         return page("<defs>" + repeated("<linear-gradient id='g'><stop/></linear-gradient>", 20'000) + "</defs><pie>" +
                     repeated("<slice value='1' fill='url(#g)'/>", 5000) + "</pie>");
     }},
    {"TransformsOfManySteps",
     [] {
         return page("<defs><linear-gradient id='g' gradientTransform='" + repeated("rotate(1) ", 50'000) +
                     "'><stop/><stop offset='1'/></linear-gradient></defs><pie>" +
                     repeated("<slice value='1' fill='url(#g)'/>", 5000) + "</pie>");
     }},
    {"ADashPatternForManyRings",
     [] {
         return page("<spider unit-frequency='0.1' web-stroke='red' web-stroke-dasharray='" +
                     repeated("1.25 ", 100'000) +
                     "'><spider-axis id='a' min='0' max='900'/><spider-axis id='b' min='0' max='900'/><spider-axis "
                     "id='c' min='0' max='900'/><spider-serie stroke='red'/></spider>");
     }},
    {"AFontFamilyForManyTexts",
     [] {
         return page("<pie labels-position='overflow'>" + repeated("<slice value='1' caption='A'/>", 10'000) + "</pie>",
                     "font-family='" + std::string(500'000, 'f') + "'");
     }},
    {"ATitleOfAMegabyte", [] { return page("<title width='1' value='" + repeated("word ", 200'000) + "'/>"); }},
    {"AWordOfAMegabyte", [] { return page("<title width='1' value='" + std::string(1'000'000, 'w') + "'/>"); }},
    {"AMixedTextOfAMegabyte",
     [] { return page("<title width='600000' value='" + repeated("a中اकא👨", 60'000) + "'/>"); }},
    {"JoinedEmojiOfAMegabyte",
     [] { return page("<title width='1000000' value='" + repeated("👨\u200D", 140'000) + "'/>"); }},
    {"ALegendOfManyItems",
     [] {
         return page("<legend>" + repeated("<legend-item caption='A long caption of an item'/>", 20'000) + "</legend>");
     }},
    {"AWebOfManyAxes",
     [] {
         std::string axes;
         for (int i = 0; i < 16'000; ++i) axes += "<spider-axis id='" + std::to_string(i) + "' min='0' max='1e6'/>";
         return page("<spider unit-frequency='1e-6' web-stroke='red'>" + axes +
                     repeated("<spider-serie stroke='red'/>", 10'000) + "</spider>");
     }},
    {"UnknownElementsInside",
     [] { return page(repeated("<x>", 250) + repeated("<y a='1'/>", 100'000) + repeated("</x>", 250)); }},
    {"UnknownAttributes", [] { return page(repeated("<title a='1' b='2' c='3' d='4' e='5'/>", 20'000)); }},
};

}  // namespace

std::span<const Attack> attacks() { return kAttacks; }

}  // namespace VEXA::Testing
