#include "tests/engine/PlotTestTools.h"
#include "vexa/support/values/TXmlAttribute.h"

namespace VEXA::Testing {
namespace {

/// One point at (50, 30) of a plot of 200 px by 100 px, in a series with these attributes.
std::string pointWith(const std::string& serie, const std::string& attributes, const std::string& plot = "",
                      const std::string& kind = "line") {
    return fixedPlot(plot, '<' + kind + "-chart><serie " + serie + "><data-point category='5' value='4' " + attributes +
                               "/></serie></" + kind + "-chart>" + kUpright);
}

/// Bodies and plots have neither fill nor stroke in these documents; what is filled is a marker.
std::string markersOf(const std::string& xml) {
    std::string text;
    for (const DrawCall& call : drawingCalls(xml)) {
        const bool isMarker = call.stroke == "#090909" && call.clips.size() < 2;
        if (isMarker) text += call.op + ' ' + call.fill + ' ' + (call.points.empty() ? call.box : call.points) + "; ";
    }
    return text;
}

TEST(Marker, IsCentredOnTheValue) {
    const std::string circle = "fill='#080808' stroke='#090909' marker='circle' marker-width='12'";
    EXPECT_TRUE(drawingCalls(pointWith(circle, ""), "ellipse").at(0).says(R"("cx":50,"cy":30,"rx":6,"ry":6)"));
    EXPECT_EQ(drawingCalls(pointWith(circle, "", "show-captions='false'"), "ellipse").size(), 0U);
    const std::string square = "fill='#080808' stroke='#090909' marker='square'";
    EXPECT_EQ(markersOf(pointWith(square, "")), "rectangle #080808 46,26 8 x 8; ");
    EXPECT_EQ(markersOf(pointWith(square, "marker='none'")), "") << "none of its own";
    EXPECT_EQ(markersOf(fixedPlot("", "<line-chart marker='square'><serie fill='#080808' stroke='#090909'>" +
                                          points("5=4 10= 15=0") + "</serie></line-chart>" + kUpright)),
              "rectangle #080808 46,26 8 x 8; rectangle #080808 146,46 8 x 8; ")
        << "none where there is no value";
}

TEST(Marker, GoesWithABoxThatStands) {
    const std::string style = "fill='#080808' stroke='#090909' marker='dash'";
    const std::string deep = "aspect-3d-view='true' aspect-3d-chart-depth='8'";
    const auto marker = [&](const std::string& plot, const std::string& kind) {
        return markersOf(pointWith(style, "", plot, kind));
    };
    EXPECT_NE(marker(deep, "bar").find("line  42,30 50,30; "), std::string::npos) << "half a depth to the left";
    EXPECT_NE(marker(deep, "line").find("line  46,30 54,30; "), std::string::npos);
    EXPECT_EQ(marker("", "bar"), "line  46,30 54,30; ");
    const std::string cylinder =
        "<bar-chart bar-shape='cylinder'><serie " + style + "><data-point category='5' value='4'/>";
    const std::string lying =
        "<category-axis min='0' max='20' orientation='vertical'/><value-axis min='-10' max='10'/>";
    const auto ofCylinder = [&](const std::string& axes) {
        return markersOf(fixedPlot(deep, cylinder + "</serie></bar-chart>" + axes));
    };
    EXPECT_NE(ofCylinder(kUpright).find("line  42,30 50,30; "), std::string::npos);
    EXPECT_NE(ofCylinder(lying).find("line  136,75 144,75; "), std::string::npos) << "what lies keeps it in place";
}

TEST(Marker, OfAStackedBarStandsAtTheTopOfTheBar) {
    const auto serie = [](const std::string& point) {
        return "<serie fill='#080808' stroke='#090909' marker='dash' marker-width='8'><data-point category='5' " +
               point + "/></serie>";
    };
    const WithFonts fonts;
    const std::string plot = fixedPlot("", "<bar-chart grouping='stacked'>" + serie("value='3'") +
                                               serie("value='4' caption='AB'") + "</bar-chart>" + kUpright);
    std::string marks;
    for (const DrawCall& call : drawingCalls(plot)) {
        if (call.op == "line" && call.stroke == "#090909") marks += call.points + "; ";
        if (call.op == "text") marks += "text " + onPage(call) + "; ";
    }
    EXPECT_EQ(marks, "46,35 54,35; text 44,11; 46,15 54,15; ") << "5 px a unit: 3 above 50, then 4 more";
}

TEST(Marker, OfAnUnknownTypeIsRefused) {
    const auto root = load(pointWith("", ""));
    auto& point = *plotOf(*root).getCharts()[0]->getSeries()[0]->getDataPoints()[0];
    point.getTypeInfo()->findAttribute("marker")->setGiven(point,
                                                           AttributeBox<MarkerType>::make(static_cast<MarkerType>(6)));
    VexaRenderContext context(make<NullSurface>(), 400, 300);
    EXPECT_EQ(failureOf([&] { point.renderOverlay(context); }).substr(0, 48),
              "UnreacheableCodeException 2001 VexaDataPoint:315");
}

TEST(Caption, IsTheDocumentsTextInItsOwnColour) {
    const WithFonts fonts;
    const std::string style = "fill='#080808' stroke='#090909' font-size='10' caption-color='#0a0a0a'";
    const auto texts = [&](const std::string& attributes, const std::string& plot = "",
                           const std::string& kind = "bar") {
        std::string text;
        for (const DrawCall& call : drawingCalls(pointWith(style, "caption='{0} %' " + attributes, plot, kind), "text"))
            text += call.text + ' ' + call.fill + call.stroke + ' ' + onPage(call) + "; ";
        return text;
    };
    EXPECT_EQ(texts(""), "{0} % #0a0a0a 35,26; ") << "30 px of text centred at 50, 4 px above 30";
    EXPECT_EQ(texts("caption-offset='6'"), "{0} % #0a0a0a 35,24; ");
    EXPECT_EQ(texts("caption-placement='inside-base'"), "{0} % #0a0a0a 35,46; ");
    EXPECT_EQ(texts("caption-placement='center'", "", "line"), "{0} % #0a0a0a 35,45; ") << "as if there were a bar";
    EXPECT_EQ(texts("", "aspect-3d-view='true' aspect-3d-chart-depth='8'"), "{0} % #0a0a0a 31,18; ") << "with its box";
    EXPECT_EQ(texts("", "show-captions='false'"), "");

    const auto root = load(pointWith(style, "caption='A'"));
    const auto surface = make<RecordingSurface>();  // which does not let texts be outlined
    root->render(surface, 400, 300);
    EXPECT_NE(surface->calls.find("text A"), std::string::npos);

    std::string colors;
    const std::string two =
        "<data-point category='5' value='4' caption='A' caption-color='#0c0c0c'/>"
        "<data-point category='10' value='4' caption='B'/>";
    for (const DrawCall& call :
         drawingCalls(fixedPlot("", "<bar-chart><serie>" + two + "</serie></bar-chart>" + kUpright), "text"))
        colors += call.text + call.fill + ' ';
    EXPECT_EQ(colors, "A#0c0c0c B#000000 ");
}

TEST(Overlay, LiesAboveTheBodiesOfAllSeriesAndTheAxes) {
    const WithFonts fonts;
    const std::string serie = "<serie fill='#080808' stroke='#080808' marker='square'>" +
                              std::string("<data-point category='5' value='4' caption='A'/></serie>");
    const std::string content = "<bar-chart grouping='clustered'>" + serie + serie + "</bar-chart><line-chart>" +
                                serie +
                                "</line-chart><category-axis min='0' max='20' stroke='#0b0b0b'/>"
                                "<value-axis min='-10' max='10' stroke='#0b0b0b'/>";
    std::string order;
    for (const DrawCall& call : drawingCalls(fixedPlot("", content))) {
        if (!call.fill.empty() || !call.stroke.empty())
            order += call.op == "rectangle" ? call.box + "; "
                     : call.op == "text"    ? "text " + onPage(call) + "; "
                                            : call.op + "; ";
    }
    EXPECT_EQ(order,
              "30,30 20 x 20; 50,30 20 x 20; path; line; line; "
              "text 37,26; 36,26 8 x 8; text 57,26; 56,26 8 x 8; text 47,26; 46,26 8 x 8; ")
        << "bars, the line, both axes, then captions and markers where the bars stand";
}

}  // namespace
}  // namespace VEXA::Testing
