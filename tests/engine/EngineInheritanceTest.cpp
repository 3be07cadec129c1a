#include "tests/engine/EngineTestTools.h"
#include "vexa/cartesian/VexaPlotArea.h"
#include "vexa/pie/VexaPie.h"
#include "vexa/spider/VexaSpider.h"

namespace VEXA {
namespace {

using namespace Testing;

TEST(EngineInheritance, NearestAncestorThatCarriesTheAttributeDecides) {
    const struct {
        std::string root, plot, chart, serie, point;
        const char *attribute, *value, *why;
    } cases[] = {
        {"", "", "", "fill='#010203'", "", "fill", "#010203", "from the series"},
        {"", "", "", "fill='#010203'", "fill='#040506'", "fill", "#040506", "the own value first"},
        {"fill='#040506'", "fill='#010203'", "", "", "", "fill", "", "an area's fill is its own and is not handed on"},
        {"", "fill='red'", "fill='#010203'", "", "", "fill", "#010203",
         "a container that does not know it hands it on"},
        {"", "", "marker='circle'", "marker='square'", "", "marker", "square", "the nearer one"},
        {"font-size='20'", "", "", "", "", "font-size", "20", "from the root through everything"},
        {"font-size='20'", "font-size='30'", "", "", "", "font-size", "30", "areas hand fonts on"},
        {"font-size='20'", "", "", "font-size='12px'", "", "font-size", "12", "a default that is given stops it"},
        {"", "", "fill-opacity='0.5'", "fill-opacity='1'", "", "fill-opacity", "1", "and is handed on itself"},
        {"", "width='50%'", "", "", "", "width", "20", "a width is no attribute to hand on"},
    };
    for (const auto& c : cases) {
        const auto root =
            load(rootWith(c.root, "<plot-area " + c.plot + "><line-chart " + c.chart + "><serie " + c.serie +
                                      "><data-point " + c.point + "/></serie></line-chart></plot-area>"));
        const auto& chart = *static_cast<VexaPlotArea&>(*root->getBodies()[0]).getCharts()[0];
        const auto& point = chart.getSeries()[0]->getDataPoints()[0];
        EXPECT_EQ(attributeOf(*point, c.attribute), c.value) << c.why;
    }
    const auto root = load(rootWith("",
                                    "<pie caption-placement='center'><slice/></pie>"
                                    "<spider min='5'><spider-axis/></spider>"));
    EXPECT_EQ(attributeOf(*static_cast<VexaPie&>(*root->getBodies()[0]).getSlices()[0], "caption-placement"), "center");
    EXPECT_EQ(attributeOf(*static_cast<VexaSpider&>(*root->getBodies()[1]).getAxes()[0], "min"), "-2147483648")
        << "bounds of a spoke stand alone";
}

TEST(EngineInheritance, TitleHasTheRootsFont) {
    const WithFonts fonts;
    const auto text = [](const std::string& root, const std::string& title) {
        return drawingCalls(rootWith(root, "<title value='T' " + title + "/>"), "text").at(0);
    };
    const std::string style = "font-size='20' font-weight='bold' font-style='italic' font-family='serif'";
    EXPECT_TRUE(text(style, "").says(R"("font":{"family":"serif","size":20,"weight":"bold","style":"italic"})"));
    EXPECT_EQ(text(style, "").origin, "0,20") << "and is laid out in it";
    EXPECT_TRUE(text(style, "font-size='12'").says(R"("size":12,"weight":"bold")")) << "each attribute for itself";
    EXPECT_EQ(text("caption-color='red'", "").fill, "#000000") << "a title's text has a colour of its own";
}

TEST(EngineInheritance, RadarChartsTakeFontsFromAboveAndPaintFromTheirOwn) {
    const auto calls =
        drawingCalls(rootWith("font-size='20' theme='none' fill='#111111'",
                              "<spider fill='#222222' stroke='#333333' caption-color='#444444' draw-web='false'>"
                              "<spider-axis id='a' caption='A'/><spider-serie/></spider>"));
    ASSERT_EQ(calls.size(), 5U) << "two backgrounds, a series, a spoke and its caption";
    EXPECT_EQ(calls[2].fill + calls[2].stroke, "") << "the areas' paint is not the series'";
    EXPECT_EQ(calls[3].stroke, "") << "nor the axis's";
    EXPECT_EQ(calls[4].fill, "#444444") << "a caption colour is handed on";
    EXPECT_TRUE(calls[4].says(R"("size":20)"));
}

}  // namespace
}  // namespace VEXA
